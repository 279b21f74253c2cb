#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Saves on a small disk that is really full and checks what is left on it.

usage: full_disk.py PROGRAM

Exit status: 0 all is well, 1 a file was damaged or something was left behind, 77 the system does
not allow the test.
"""

import os
import subprocess
import sys
from pathlib import Path

from fault_sweep import IS_ROOT, SKIPPED, Work, make_definition


def enter_full_disk(program):
    """Starts this script again where it may mount a disk of its own."""
    unshare = ["unshare", "--mount"] if IS_ROOT else ["unshare", "--map-root-user", "--mount"]
    with Work() as work:
        mount = ["mount", "-t", "tmpfs", "-o", "size=400k,mode=755", "tmpfs", work]
        probe = subprocess.run([*unshare, *mount], capture_output=True, text=True)
        if probe.returncode != 0:
            print("SKIPPED: no disk can be mounted here:", probe.stderr.strip())
            return SKIPPED
        script = " ".join(mount) + ' && exec "$@"'
        return subprocess.run([*unshare, "sh", "-c", script, "sh", sys.executable, __file__,
                               os.path.abspath(program), work]).returncode


def fill_disk(folder, free_bytes):
    """Fills the disk but for `free_bytes`, rounded down to whole pages."""
    with open(Path(folder) / "filler", "wb", buffering=0) as filler:
        while True:
            status = os.statvfs(folder)
            left = status.f_bavail * status.f_frsize - free_bytes
            if left < status.f_frsize:
                return
            filler.write(bytes(min(left, 1 << 16)))


def save_on_full_disk(program, disk):
    """On a disk of 400 KB: saves with 0, 1, 2 ... free pages until nothing is missing any more."""
    page = os.statvfs(disk).f_frsize
    problems = 0
    for is_linked in [False, True]:
        outcomes = set()
        for free_pages in range(0, 40):
            for path in disk.iterdir():
                path.unlink()
            (disk / "in.js").write_bytes(make_definition(1500))
            old = b"old " * 1000
            (disk / "menu.js").write_bytes(old)
            if is_linked:
                os.link(disk / "menu.js", disk / "other.js")
            expected_names = sorted([path.name for path in disk.iterdir()] + ["filler"])
            fill_disk(disk, free_pages * page)
            result = subprocess.run(
                [program, "format", disk / "in.js", "-o", disk / "menu.js"],
                env=dict(os.environ, TMPDIR=str(disk)), capture_output=True, text=True)
            outcomes.add(result.returncode)
            content = (disk / "menu.js").read_bytes()
            is_new = content.startswith(b"zev_state.") and content.endswith(b"\r\n\r\n\r\n")
            right = is_new if result.returncode == 0 else (
                content == old and result.returncode == 3 and
                "No space left on device" in result.stderr)
            names = sorted(path.name for path in disk.iterdir())
            if not right or names != expected_names:
                problems += 1
                print(f"FAILED, {free_pages} free pages, linked {is_linked}: "
                      f"status {result.returncode}, {len(content)} bytes, {names}, "
                      f"{result.stderr}")
        if outcomes != {0, 3}:
            problems += 1
            print(f"FAILED: the disk was never full, or always: outcomes {outcomes}")
        print(f"full disk, hard links {is_linked}: outcomes {sorted(outcomes)}")
    return 1 if problems else 0


def main():
    if len(sys.argv) == 3:
        return save_on_full_disk(sys.argv[1], Path(sys.argv[2]))
    return enter_full_disk(sys.argv[1])


if __name__ == "__main__":
    sys.exit(main())
