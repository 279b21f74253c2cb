#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that source folders include only what they may.

usage: include_arrows.py ROOT

Prints "file:line: ..." for every wrong include; exit status 1 when there is one, or when there is
nothing to check.
"""

import re
import sys
from pathlib import Path

CORE = {"text", "model", "script", "importers", "html", "library", "integrator", "checks", "platform",
        "recovery", "messages"}
QT = {"Qt"}

# Folder of the including file -> what it may include beside its own folder and the standard and
# system headers. The longest folder that fits a file counts. "Qt" stands for all of Qt's headers.
ALLOWED = {
    "text": set(),
    "model": {"text"},
    "script": {"model", "text"},
    "importers": {"script", "model", "text"},
    "platform": {"text"},
    "platform/posix": {"platform", "text"},
    "platform/fake": {"platform", "text"},
    "platform/qt": {"platform", "text"} | QT,
    "html": {"text"},
    "library": {"platform", "text"},
    "integrator": {"script", "model", "html", "platform", "text"},
    "checks": {"script", "model", "html", "platform", "text"},
    "recovery": {"script", "model", "platform", "text"},
    "messages": {"checks", "importers", "library", "integrator", "script", "model", "platform", "text"},
    "integrator/wizard": CORE | {"dialogs"} | QT,
    "dialogs": CORE | QT,
    "app": CORE | {"integrator/wizard", "platform/posix", "platform/qt", "dialogs"} | QT,
    "runtime/join": set(),
    "cli": CORE | {"platform/posix"},
}

INCLUDE = re.compile(r'^\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')


def folder_of(path):
    """The longest folder of the table that a path relative to the root lies in, or None."""
    parts = Path(path).parts[:-1]
    for length in range(len(parts), 0, -1):
        folder = "/".join(parts[:length])
        if folder in ALLOWED:
            return folder
    return None


def is_qt(header):
    return re.match(r"Q[A-Z]|Qt[A-Z]|qt?[a-z]*\.h$|q[a-z_]+\.h$", header.split("/")[-1]) is not None


def allowed_for(path):
    return ALLOWED[folder_of(path)]


def problem_of(root, path, quoted, bracketed):
    """What is wrong with one include of the file `path`, or None."""
    own = folder_of(path)
    if bracketed is not None:
        # Standard, system and library headers; of them only Qt's are a matter of arrows.
        if is_qt(bracketed) and "Qt" not in allowed_for(path):
            return f"{own} may not include Qt's <{bracketed}>"
        if folder_of(bracketed) is not None and (root / bracketed).exists():
            return f'our own header <{bracketed}> belongs in quotes'
        return None
    target = folder_of(quoted)
    if target is None:
        if quoted.endswith((".moc", ".ui")) or quoted.startswith(("ui_", "moc_")):
            return None
        return f'"{quoted}" must be given by its path from the root'
    if target != own and target not in allowed_for(path):
        return f'{own} may not include "{quoted}"'
    return None


def check(root):
    """Returns (number of includes looked at, problems)."""
    count = 0
    problems = []
    for folder in sorted({name.split("/")[0] for name in ALLOWED}):
        for file in sorted((root / folder).rglob("*")):
            if file.suffix not in {".h", ".cpp"}:
                continue
            path = file.relative_to(root).as_posix()
            for number, line in enumerate(file.read_text("utf-8").splitlines(), 1):
                match = INCLUDE.match(line)
                if not match:
                    continue
                count += 1
                problem = problem_of(root, path, *match.groups())
                if problem:
                    problems.append(f"{path}:{number}: {problem}")
    return count, problems


def main():
    count, problems = check(Path(sys.argv[1]))
    for problem in problems:
        print(problem)
    if count == 0:
        print("no include found: is this the source tree?")
    print(f"{count} includes, {len(problems)} wrong")
    return 1 if problems or count == 0 else 0


if __name__ == "__main__":
    sys.exit(main())
