#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Breaks every file operation of the editor's saving commands once.

usage: editor_sweep.py SAVE_DRIVER

Exit status: 0 all is well, 1 a file was damaged or something was left behind, 77 the system does
not allow the test.
"""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "faults"))

import fault_sweep  # noqa: E402

RUN_TIME_FILES = ["zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js", "zevmenu.html"]


def new_template(work, name, is_replacing):
    """A folder as save_driver wants it; `is_replacing`: every file to be written is there."""
    template = fault_sweep.new_template(work, name)
    (template / "program").mkdir()
    for file in RUN_TIME_FILES:
        (template / "program" / file).write_bytes(b"content of " + file.encode())
    if is_replacing:
        for folder in [template, template / "site"]:
            for file in [*RUN_TIME_FILES[:3], "orlet_temp.html", "orlet_temp.js"]:
                (folder / file).write_bytes(b"old " + file.encode())
        (template / "site/menu.js").write_bytes(b"old " * 1000)
    return template


def new_sweep(program, work, command, definition, is_replacing):
    name = f"{command}, {'replaced' if is_replacing else 'new'} files"
    template = new_template(work, name.replace(", ", "-").replace(" ", "-"), is_replacing)
    fault_sweep.give_to_nobody(template)
    return fault_sweep.Sweep(name, template, [program, command, "{folder}"], definition, work)


def main():
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    return fault_sweep.sweep_program(sys.argv[1], lambda program, work: [
        new_sweep(program, work, "save", "in.js", is_replacing=True),
        new_sweep(program, work, "saveas", "site/menu.js", is_replacing=False),
        new_sweep(program, work, "saveas", "site/menu.js", is_replacing=True),
        new_sweep(program, work, "preview", "orlet_temp.js", is_replacing=False),
    ])


if __name__ == "__main__":
    sys.exit(main())
