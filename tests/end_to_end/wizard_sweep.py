#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Breaks every file operation of the Menu Integrator on the site's folder once.

usage: wizard_sweep.py WIZARD_DRIVER

Exit status: 0 all is well, 1 a file was damaged or something was left behind, 77 the system does
not allow the test.
"""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent / "faults"))

import fault_sweep  # noqa: E402

PAGE = b"<html><head></head><body>" + b"<p>text</p>" * 500 + b"</body></html>\n"


def new_sweep(sweep_class, program, work, command, written, files):
    """`files`: what lies in the site's folder, by name; `written`: the file to look at."""
    template = fault_sweep.new_template(work, command)
    for name, content in files.items():
        (template / "site" / name).write_bytes(content)
        (template / "site" / name).chmod(0o640)
    fault_sweep.give_to_nobody(template)
    sweep = sweep_class(command, template, [program, command, "{folder}"], written, work)
    # The wizard starts slowly, and its files are written by what the command line's are written by,
    # where each error and interruption is swept.
    sweep.errors = ["EIO"]
    sweep.is_interrupted = False
    return sweep


def main():
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    return fault_sweep.sweep_program(sys.argv[1], lambda program, work: [
        new_sweep(fault_sweep.PageSweep, program, work, "integrate", "site/page.htm",
                  {"page.htm": PAGE, "page.htm.bak": b"older backup"}),
        # Without a page the report is all that is written.
        new_sweep(fault_sweep.Sweep, program, work, "report", "site/report.txt",
                  {"report.txt": b"old " * 1000}),
    ])


if __name__ == "__main__":
    sys.exit(main())
