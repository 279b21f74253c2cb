#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the handwriting of the C++ sources.

usage: style_check.py format ROOT
       style_check.py names ROOT BUILD

"format" holds all sources, the tests' too, against the root's .clang-format. "names" runs clang-tidy
with the root's .clang-tidy on the programs' sources, as BUILD/compile_commands.json compiles them.
That takes minutes, so a source is passed over while it and all it includes are as they were when it
was last found right; BUILD/style_check.json remembers that.

Prints what is wrong; exit status 1 when anything is, or when there is nothing to check.
"""

import concurrent.futures
import hashlib
import json
import os
import re
import subprocess
import sys
from pathlib import Path

PRODUCT = ["text", "model", "script", "importers", "html", "library", "integrator", "checks",
           "messages", "platform", "recovery", "dialogs", "app", "cli"]
OTHERS = ["bench", "fuzz", "packaging", "tests"]
INCLUDE = re.compile(r'^\s*#\s*include\s*"([^"]+)"', re.M)


def sources_of(root, folders):
    return sorted(file for folder in folders for file in (root / folder).rglob("*")
                  if file.suffix in {".h", ".cpp"} and "node_modules" not in file.parts)


def check_format(root):
    files = sources_of(root, PRODUCT + OTHERS)
    if not files:
        print("no source found: is this the source tree?")
        return 1
    return subprocess.run(["clang-format", "--dry-run", "-Werror", *files], cwd=root).returncode


class Fingerprints:
    """Of a source with everything of ours that it includes, directly or not."""

    def __init__(self, root):
        self.root = root
        self.rules = (root / ".clang-tidy").read_bytes()
        self.texts = {}

    def text_of(self, file):
        if file not in self.texts:
            data = file.read_bytes()
            included = {self.root / name for name in INCLUDE.findall(data.decode("utf-8"))}
            self.texts[file] = (data, sorted(path for path in included if path.is_file()))
        return self.texts[file]

    def of(self, source, arguments):
        digest = hashlib.sha256(self.rules + arguments.encode())
        seen, waiting = {source}, [source]
        while waiting:
            data, included = self.text_of(waiting.pop())
            digest.update(data)
            fresh = [file for file in included if file not in seen]
            seen.update(fresh)
            waiting += fresh
        return digest.hexdigest()


def tidy(root, build, source):
    # GCC's own warning options mean nothing to clang.
    return subprocess.run(
        ["clang-tidy", "--quiet", "-p", build, "--extra-arg=-Wno-unknown-warning-option",
         f"--header-filter=^{re.escape(str(root))}/({'|'.join(PRODUCT)})/", source],
        capture_output=True, text=True)


def check_names(root, build):
    commands = {Path(entry["file"]): entry["command"]
                for entry in json.loads((build / "compile_commands.json").read_text())}
    sources = [file for file in sources_of(root, PRODUCT) if file in commands]
    if not sources:
        print("no compiled source found: is this the build of that source tree?")
        return 1
    memory = build / "style_check.json"
    known = set(json.loads(memory.read_text())) if memory.exists() else set()
    prints = Fingerprints(root)
    print_of = {source: prints.of(source, commands[source]) for source in sources}
    changed = [source for source in sources if print_of[source] not in known]
    wrong = set()
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        results = pool.map(lambda source: tidy(root, build, source), changed)
        for source, result in zip(changed, results):
            if result.returncode != 0:
                wrong.add(source)
                print(result.stdout + result.stderr)
    memory.write_text(json.dumps(sorted(print_of[source] for source in sources
                                        if source not in wrong)))
    print(f"{len(sources)} sources, {len(changed)} looked at, {len(wrong)} wrong")
    return 1 if wrong else 0


def main():
    root = Path(sys.argv[2]).resolve()
    if sys.argv[1] == "format":
        return check_format(root)
    return check_names(root, Path(sys.argv[3]).resolve())


if __name__ == "__main__":
    sys.exit(main())
