# SPDX-License-Identifier: MIT
"""What the tests of installations share."""

import os
import re
import subprocess
import sys
import time
from pathlib import Path

NOBODY = 65534
TIME_LIMIT_SECONDS = 60


def run(*command, **options):
    """The result of a command that must succeed."""
    result = subprocess.run([str(word) for word in command], capture_output=True, text=True,
                            encoding="utf-8", **options)
    if result.returncode != 0:
        raise AssertionError(f"{command}: status {result.returncode}\n{result.stdout}{result.stderr}")
    return result


def listed_files(build):
    """What an installation has: {component: paths below its root}."""
    files = {}
    for line in (build / "installed_files.txt").read_text("utf-8").splitlines():
        component, path = line.split(" ", 1)
        files.setdefault(component, []).append(path)
    return files


def files_below(root):
    return sorted(path.relative_to(root).as_posix() for path in root.rglob("*")
                  if path.is_symlink() or not path.is_dir())


def bytes_below(root):
    return {name: (root / name).read_bytes() for name in files_below(root)}


def environment(**values):
    """Of a person whose data lie in none but the given folders."""
    kept = {name: value for name, value in os.environ.items() if not name.startswith("XDG_")}
    return kept | {name: str(value) for name, value in values.items()}


def as_ordinary_user():
    """How a process becomes one: nothing to do for a person, "nobody" for root."""
    return {"user": NOBODY, "group": NOBODY, "extra_groups": []} if os.geteuid() == 0 else {}


def start_until(command, is_done, **options):
    """Starts a program that goes on by itself, waits until `is_done()`, and ends it."""
    process = subprocess.Popen([str(word) for word in command], stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT, text=True, **options)
    try:
        end = time.monotonic() + TIME_LIMIT_SECONDS
        while not is_done():
            if process.poll() is not None:
                raise AssertionError(f"{command}: ended with status {process.returncode}\n"
                                     f"{process.stdout.read()}")
            if time.monotonic() > end:
                raise AssertionError(f"{command}: not done in {TIME_LIMIT_SECONDS} seconds")
            time.sleep(0.05)
    finally:
        process.kill()
        process.wait()


def version_of(source):
    return re.search(r"^project\(\S+ VERSION (\S+)", (source / "CMakeLists.txt").read_text("utf-8"),
                     re.MULTILINE).group(1)


def next_argument():
    return Path(sys.argv.pop(1)).resolve()
