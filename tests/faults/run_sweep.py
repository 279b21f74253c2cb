#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Breaks and kills a run over a folder of pages, and the undoing of one, and undoes it then.

usage: run_sweep.py PROGRAM

After each fault every page must be the old or the new one, and its backup whole before the page is
new. Undoing then must give every page back byte for byte, also what it was killed in, and the next
run must find nothing in its way. Each call that changes a file is killed and fails once; with
ZEV_LONG_SWEEP set in the environment, every call does, and with every error.

Exit status: 0 all is well, 1 a page was damaged or could not be undone, 77 the system does not allow
the test.
"""

import os
import re
import sys

import fault_sweep
from fault_sweep import CALLS, ERRORS, WRITES, State

IS_LONG = bool(os.environ.get("ZEV_LONG_SWEEP"))
CHANGES = WRITES + ["rename", "renameat", "renameat2", "unlink", "unlinkat"]
PAGES = ["site/a.htm", "site/sub/b.htm"]
PAGE = (b"<html><head><script>own()</script></head><body onload='x()'>" + b"<p>text</p>" * 500 +
        b"</body></html>\n")
RECORDS = "data/zevmenu-creator/runs"


class RunSweep(fault_sweep.Sweep):
    data_home = "{folder}/data"

    def __init__(self, name, template, program, is_undo, work):
        super().__init__(name, template, [], PAGES[0], work)
        self.integrate = [program, "integrate", "--definition", f"{self.folder}/site/menu.js",
                          "--library", f"{self.folder}/site", "--recursive",
                          f"{self.folder}/site"]
        self.undo = [program, "integrate", "--undo", "last"]
        self.is_undo = is_undo
        self.command = self.undo if is_undo else self.integrate

    def sweep(self):
        self.make_trace()
        self.refresh()
        self.old = State(self.folder)
        result = self.run(command=self.integrate)
        self.new = State(self.folder)
        if result.returncode != 0 or len(self.records(self.new)) != 1:
            self.fail("undisturbed", f"no run was recorded: {result.stderr}")
            return
        if self.is_undo:
            # Records hold full paths, so the run has to be one in this folder.
            self.template = self.folder.parent / "integrated"
            self.folder.rename(self.template)
        self.refresh()
        result = self.strace("-e", "trace=" + ",".join("?" + call for call in CALLS))
        if result.returncode != 0:
            self.fail("undisturbed", f"status {result.returncode}: {result.stderr}")
            return
        if not self.is_undo:
            self.check_record_is_flushed()
        for call, number in self.calls_on_folder():
            if not IS_LONG and call not in CHANGES:
                continue
            self.fault(f"killed at {call} {number}", call, number, "signal=KILL")
            for error in ERRORS if IS_LONG else ["ENOSPC"]:
                self.fault(f"{error} at {call} {number}", call, number, f"error={error}")

    def records(self, state):
        return [name for name in state.files() if name.startswith(RECORDS + "/")]

    def check_record_is_flushed(self):
        flushed = {event[1] for event in self.events() if event[0] == "fsync"}
        record = str(self.folder / self.records(State(self.folder))[0])
        for path in [record, os.path.dirname(record)]:
            if path not in flushed:
                self.fail("undisturbed", f"{path} was not flushed")

    def fault(self, fault, call, number, what):
        result, lines = self.inject(call, number, what)
        is_killed = "KILL" in what
        if is_killed != any("killed by SIGKILL" in line for line in lines):
            self.fail(fault, "the fault did not happen")
        after = State(self.folder)
        for page in PAGES:
            self.check_page(fault, page, after)
        # Where a record could not be written, the run has said so.
        is_told = not is_killed and re.search("cannot be undone|can be undone", result.stderr)
        self.check_undone(fault, after, is_told)

    def check_page(self, fault, page, after):
        old, new = self.old.bytes_of(page), self.new.bytes_of(page)
        content = after.bytes_of(page)
        if content not in (old, new):
            self.fail(fault, f"{page} is neither the old nor the new one")
        elif content == new and after.bytes_of(page + ".bak") != old:
            self.fail(fault, f"{page} was touched before its backup was whole")

    def check_undone(self, fault, after, is_told):
        result = self.run(command=self.undo)
        undone = State(self.folder)
        for page in PAGES:
            if undone.entries.get(page) != self.old.entries[page] and not is_told:
                self.fail(fault, f"{page} could not be undone: {result.stderr}")
        if self.records(undone):
            self.fail(fault, "the record of an undone run is still there")
        # What a killed run left beside its backups goes with the next one.
        again = self.run(command=self.integrate)
        final = State(self.folder)
        for page in PAGES:
            if final.bytes_of(page) != self.new.bytes_of(page):
                self.fail(fault, f"{page} could not be integrated again: {again.stderr}")
        names = {name for name in final.entries if not name.startswith(RECORDS)}
        expected = {name for name in self.new.entries if not name.startswith(RECORDS)}
        if names - expected and not is_told:
            self.fail(fault, f"left behind: {sorted(names - expected)}")


def new_sweep(program, work, is_undo):
    name = "undo" if is_undo else "run over a folder"
    template = fault_sweep.new_template(work, name.replace(" ", "-"))
    (template / "site/sub").mkdir()
    for page in PAGES:
        (template / page).write_bytes(PAGE)
        (template / page).chmod(0o640)
    (template / "data").mkdir()
    fault_sweep.give_to_nobody(template)
    return RunSweep(name, template, program, is_undo, work)


def main():
    if len(sys.argv) != 2:
        print(__doc__, file=sys.stderr)
        return 2
    return fault_sweep.sweep_program(sys.argv[1], lambda program, work: [
        new_sweep(program, work, is_undo) for is_undo in (False, True)])


if __name__ == "__main__":
    sys.exit(main())
