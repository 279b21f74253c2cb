#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that every source begins with the line that names its licence.

usage: licence_lines.py ROOT [--add]

With --add the line is put where it is missing: first, or behind "#!". Data that tests read, samples
and the definitions in the manual are no sources. Exit status 1 when a line is missing, or when there is
nothing to check.
"""

import os
import sys
from pathlib import Path

LINE = "SPDX-License-Identifier: MIT"
COMMENT = {".cpp": "//", ".h": "//", ".js": "//", ".mjs": "//", ".ts": "//", ".py": "#", ".sh": "#"}
LEFT_OUT = {"build", "node_modules", "data", "corpus", "samples", ".git", "examples"}


def sources(root):
    """Every file of ours that is code, with the sign that begins a comment in it."""
    for folder, names, files in os.walk(root):
        names[:] = sorted(set(names) - LEFT_OUT)
        for name in sorted(files):
            path = Path(folder, name)
            sign = COMMENT.get(path.suffix)
            if sign:
                yield path, sign
            elif not path.suffix and path.read_bytes()[:2] == b"#!":
                yield path, "#"


def place_of(lines):
    """The index at which the line stands or belongs."""
    return 1 if lines and lines[0].startswith("#!") else 0


def main():
    root, adds = Path(sys.argv[1]), "--add" in sys.argv[2:]
    count, missing = 0, []
    for path, sign in sources(root):
        count += 1
        lines = path.read_text("utf-8").splitlines(keepends=True)
        place = place_of(lines)
        if lines[place:place + 1] == [f"{sign} {LINE}\n"]:
            continue
        missing.append(path)
        if adds:
            path.write_text("".join([*lines[:place], f"{sign} {LINE}\n", *lines[place:]]), "utf-8",
                            newline="")
    for path in missing:
        print(f"{path}: {'now has' if adds else 'does not begin with'} '{LINE}'")
    print(f"{count} sources, {len(missing)} without the line")
    return 1 if count == 0 or missing and not adds else 0


if __name__ == "__main__":
    sys.exit(main())
