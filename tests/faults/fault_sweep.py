#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Breaks every file operation of a saving command once and checks what is left on the disk.

usage: fault_sweep.py zevmenu PROGRAM
       fault_sweep.py command --template FOLDER --definition NAME -- COMMAND...

Exit status: 0 all is well, 1 a file was damaged or something was left behind, 77 the system does
not allow the test.
"""

import argparse
import os
import re
import shutil
import stat
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

SKIPPED = 77
NOBODY = 65534
IS_ROOT = os.geteuid() == 0

ERRORS = ["ENOSPC", "EIO", "EACCES"]

# Calls that change files, or lead to a change.
WRITES = ["write", "writev", "pwrite64", "copy_file_range", "sendfile"]
CALLS = WRITES + [
    "openat", "open", "creat", "read", "fsync", "fdatasync", "rename", "renameat", "renameat2",
    "link", "linkat", "symlink", "unlink", "unlinkat", "fchmod", "fchown", "fsetxattr",
    "fremovexattr", "ftruncate", "lseek", "close", "mkdir", "flock", "fcntl"]

# Calls that a signal may interrupt; the program has to go on.
INTERRUPTIBLE = ["openat", "read", "write", "fsync", "close"]

# As long as it takes: what is swept writes small files.
TIME_LIMIT_SECONDS = 60


class State:
    """All that lies in a folder: {path: description}, each a value to be compared whole."""

    def __init__(self, folder):
        self.entries = {}
        for path in sorted(Path(folder).rglob("*")):
            name = path.relative_to(folder).as_posix()
            status = path.lstat()
            mode = stat.S_IMODE(status.st_mode)
            if path.is_symlink():
                self.entries[name] = ("link", os.readlink(path))
            elif path.is_dir():
                self.entries[name] = ("folder", mode)
            else:
                attributes = {key: os.getxattr(path, key) for key in os.listxattr(path)}
                self.entries[name] = ("file", mode, path.read_bytes(), attributes)

    def bytes_of(self, name):
        entry = self.entries.get(name)
        return entry[2] if entry and entry[0] == "file" else None

    def files(self):
        return [name for name, entry in self.entries.items() if entry[0] == "file"]


class Sweep:
    """One command on one folder of files."""

    # The status that tells of a file that was not written.
    failed_status = 3
    errors = ERRORS
    # Whether calls are interrupted by signals, too.
    is_interrupted = True
    # Nowhere: a run of pages then leaves no record, whose name would differ from run to run.
    data_home = "/nonexistent"

    def __init__(self, name, template, command, definition, work):
        self.name = name
        self.template = Path(template)
        self.definition = definition
        own = Path(tempfile.mkdtemp(dir=work))
        own.chmod(0o755)
        give_to_nobody(own)
        self.folder = own / "run"
        self.trace = own / "trace"
        self.command = [part.replace("{folder}", str(self.folder)) for part in command]
        self.problems = []
        self.runs = 0

    def refresh(self):
        if self.folder.exists():
            subprocess.run(["chmod", "-R", "u+rwX", self.folder], check=True)
            shutil.rmtree(self.folder)
        # cp knows hard links, attributes and owners.
        subprocess.run(["cp", "-a", self.template, self.folder], check=True)

    def run(self, *tracing, command=None):
        """Runs the command, under strace when `tracing` is given; root runs it as nobody."""
        self.runs += 1
        user = {"user": NOBODY, "group": NOBODY, "extra_groups": []} if IS_ROOT else {}
        environment = dict(os.environ, TMPDIR=str(self.folder / "tmp"), LC_ALL="C",
                           HOME=str(self.folder / "tmp"),
                           XDG_DATA_HOME=self.data_home.replace("{folder}", str(self.folder)))
        # The leak check stops other threads by ptrace, which strace already uses.
        options = environment.get("ASAN_OPTIONS", "")
        environment["ASAN_OPTIONS"] = options + ":detect_leaks=0"
        return subprocess.run([*tracing, *(command or self.command)], cwd="/", env=environment, text=True,
                              stdin=subprocess.DEVNULL, capture_output=True, errors="replace",
                              timeout=TIME_LIMIT_SECONDS, **user)

    def strace(self, *options):
        # Output goes through a file of the right owner that is there already.
        return self.run("strace", "-f", "-y", "-qq", "-o", str(self.trace), *options)

    def trace_lines(self):
        return self.trace.read_text("utf-8", errors="replace").splitlines()

    def calls_on_folder(self):
        """(call, number among the calls of that name) of each call that touches the folder."""
        counts = {}
        found = []
        for line in self.trace_lines():
            match = re.match(r"\d+\s+(\w+)\(", line)
            if not match:
                continue
            call = match.group(1)
            counts[call] = counts.get(call, 0) + 1
            if str(self.folder) in line:
                found.append((call, counts[call]))
        return found

    def events(self):
        """(call, path or paths) of each call of the trace that names a file."""
        found = []
        for line in self.trace_lines():
            match = re.match(r"\d+\s+(\w+)\((.*)", line)
            if not match:
                continue
            call, rest = match.groups()
            if call.startswith("rename"):
                names = re.findall(r'"([^"]*)"', rest)
                found.append((call, *names))
            else:
                opened = re.findall(r"\d+<([^>]*)>", rest)
                if opened:  # copy_file_range() names the source first
                    found.append((call, opened[-1 if call == "copy_file_range" else 0]))
        return found

    def check_flushes(self):
        """What was written must be on the disk before anything relies on it. A file that the run
        deletes again need not be, but where it is the copy of a user's file."""
        events = self.events()
        kept = {str(self.folder / name) for name in self.new.files()}
        for at, (call, *paths) in enumerate(events):
            if call in WRITES + ["ftruncate"] and paths[0] in kept:
                later = [event for event in events[at:] if event[1] == paths[0]]
                if ("fsync", paths[0]) not in later:
                    self.fail("undisturbed", f"{paths[0]} was not flushed after {call}")
            if call.startswith("rename"):
                if ("fsync", paths[0]) not in events[:at]:
                    self.fail("undisturbed", f"{paths[0]} was renamed before it was flushed")
                if ("fsync", os.path.dirname(paths[1])) not in events[at:]:
                    self.fail("undisturbed", f"the folder of {paths[1]} was not flushed")
        self.check_kept_copies(events)

    def check_kept_copies(self, events):
        """Before a user's file is written in place a copy of it, and its name, are flushed."""
        for name in self.old.files():
            path = str(self.folder / name)
            writes = [at for at, event in enumerate(events)
                      if event[0] in WRITES and event[1] == path]
            if not writes:
                continue
            before = events[:writes[0]]
            copies = [at for at, event in enumerate(before)
                      if event[0] == "fsync" and Path(event[1]).name.endswith("~")]
            if not copies:
                self.fail("undisturbed", f"{name} was written without a copy")
            elif ("fsync", os.path.dirname(before[copies[-1]][1])) not in before[copies[-1]:]:
                self.fail("undisturbed", f"the folder of the copy of {name} was not flushed")

    def fail(self, fault, what):
        self.problems.append(f"{self.name}, {fault}: {what}")

    def make_trace(self):
        self.trace.touch()
        if IS_ROOT:
            os.chown(self.trace, NOBODY, NOBODY)

    def sweep(self):
        self.make_trace()
        self.refresh()
        self.old = State(self.folder)
        result = self.strace("-e", "trace=" + ",".join("?" + call for call in CALLS))
        self.new = State(self.folder)
        calls = self.calls_on_folder()
        if result.returncode != 0:
            self.fail("undisturbed", f"status {result.returncode}: {result.stderr}")
        elif self.new.bytes_of(self.definition) is None:
            self.fail("undisturbed", f"there is no {self.definition}")
        elif self.new.bytes_of(self.definition) == self.old.bytes_of(self.definition):
            self.fail("undisturbed", f"{self.definition} is as before: nothing to look for")
        elif not any(call in WRITES for call, _ in calls):
            self.fail("undisturbed", "no write was seen")
        if self.problems:
            return
        self.check_flushes()
        # A sanitizer writes to pipes of its own, which must not fail with the drive.
        may_vanish = b"__ubsan_" not in Path(self.command[0]).read_bytes()
        for position, (call, number) in enumerate(calls):
            if may_vanish:
                self.vanish_at(calls, position)
            for error in self.errors:
                self.break_call(call, number, error)
            if self.is_interrupted and call in INTERRUPTIBLE:
                self.interrupt_call(call, number)
            self.kill_at(call, number)

    def inject(self, call, number, what):
        self.refresh()
        result = self.strace("-e", f"trace={call}", "-e", f"inject={call}:{what}:when={number}")
        return result, self.trace_lines()

    def break_call(self, call, number, error):
        fault = f"{error} at {call} {number}"
        result, lines = self.inject(call, number, f"error={error}")
        hit = [line for line in lines if "(INJECTED)" in line]
        if len(hit) != 1 or str(self.folder) not in hit[0]:
            self.fail(fault, f"the fault hit something else: {hit}")
        after = State(self.folder)
        self.check_files(fault, after, may_be_kept=False)
        # A leftover whose removal is what failed cannot but stay.
        self.check_strays(fault, after, allowed=call in ("unlink", "unlinkat"))
        self.check_status(fault, result, after)

    def vanish_at(self, calls, position):
        """The drive is gone from this call on, and back for the next run."""
        call, number = calls[position]
        fault = f"drive gone at {call} {number}"
        first = {}
        for later_call, later_number in calls[position:]:
            first.setdefault(later_call, later_number)
        self.refresh()
        injections = [part for name, start in first.items()
                      for part in ("-e", f"inject={name}:error=EIO:when={start}+")]
        result = self.strace("-e", "trace=" + ",".join(first), *injections)
        after = State(self.folder)
        self.check_files(fault, after, may_be_kept=True)
        is_written = after.bytes_of(self.definition) == self.new.bytes_of(self.definition)
        allowed = (0, self.failed_status, 3)  # standard output is gone with the drive
        if result.returncode not in allowed or (result.returncode == 0 and not is_written):
            self.fail(fault, f"status {result.returncode}")
        self.check_next_run(fault)

    def interrupt_call(self, call, number):
        fault = f"interrupted {call} {number}"
        result, _ = self.inject(call, number, "error=EINTR")
        if result.returncode != 0 or State(self.folder).entries != self.new.entries:
            self.fail(fault, f"did not go on: status {result.returncode}: {result.stderr}")

    def kill_at(self, call, number):
        fault = f"killed at {call} {number}"
        _, lines = self.inject(call, number, "signal=KILL")
        if not any("killed by SIGKILL" in line for line in lines):
            self.fail(fault, "was not killed")
        self.check_files(fault, State(self.folder), may_be_kept=True)
        self.check_next_run(fault)

    def check_next_run(self, fault):
        result = self.run()
        after = State(self.folder)
        if result.returncode != 0 or not self.is_put_right(after):
            names = sorted(set(after.entries) ^ set(self.new.entries))
            self.fail(fault, f"the next run did not put all right: status {result.returncode}, "
                             f"{names} {result.stderr}")

    def is_put_right(self, after):
        return after.entries == self.new.entries

    def check_files(self, fault, after, may_be_kept):
        for name in sorted(set(self.old.entries) | set(self.new.entries)):
            entry = after.entries.get(name)
            if entry in (self.old.entries.get(name), self.new.entries.get(name)):
                continue
            if may_be_kept and self.is_kept(after, name):
                continue
            self.fail(fault, f"{name} is neither the old nor the new one: {str(entry)[:200]}")

    def is_kept(self, after, name):
        """A file left half-written in place: the old one must lie beside it."""
        old = self.old.bytes_of(name)
        return old is not None and any(after.bytes_of(stray) == old
                                       for stray in self.strays(after))

    def strays(self, after):
        return sorted(set(after.entries) - set(self.old.entries) - set(self.new.entries))

    def check_strays(self, fault, after, allowed):
        strays = self.strays(after)
        if strays and not allowed:
            self.fail(fault, f"left behind: {strays}")

    def check_status(self, fault, result, after):
        is_written = after.bytes_of(self.definition) == self.new.bytes_of(self.definition)
        if result.returncode not in (0, self.failed_status):
            self.fail(fault, f"status {result.returncode}: {result.stderr}")
        elif result.returncode == 0 and not is_written:
            self.fail(fault, "status 0, but the definition was not written")
        elif result.returncode != 0 and not self.words_of(result):
            self.fail(fault, "failed without a word")

    def words_of(self, result):
        return result.stderr.strip()


class PageSweep(Sweep):
    """`integrate`, whose report tells of failures. The "definition" is the page."""

    failed_status = 1

    def words_of(self, result):
        page = re.escape(str(self.folder / self.definition))
        return re.search(f"^ERROR: {page} not saved: .+$", result.stdout, re.MULTILINE)

    def backup(self):
        name = self.definition + ".bak"
        return name if name in self.new.entries else None

    def check_files(self, fault, after, may_be_kept):
        super().check_files(fault, after, may_be_kept)
        page = after.bytes_of(self.definition)
        if (self.backup() and page != self.old.bytes_of(self.definition)
                and after.bytes_of(self.backup()) != self.old.bytes_of(self.definition)):
            self.fail(fault, "the page was touched before its backup was whole")
        self.check_modes(fault, after)

    def check_modes(self, fault, after):
        """Nothing that holds a page's text is ever more open than the page."""
        mode = self.old.entries[self.definition][1]
        texts = (self.old.bytes_of(self.definition), self.new.bytes_of(self.definition))
        for name in after.files():
            entry = after.entries[name]
            holds_text = entry[2] and any(text.startswith(entry[2]) for text in texts)
            if holds_text and entry[1] & ~mode:
                self.fail(fault, f"{name} has mode {entry[1]:o}, the page {mode:o}")

    def check_next_run(self, fault):
        page = State(self.folder).bytes_of(self.definition)
        # A page half-written in place lies beside its old bytes. Only the user can put those back:
        # a run that makes the new page from the page there is has nothing else to go by.
        if page in (self.old.bytes_of(self.definition), self.new.bytes_of(self.definition)):
            super().check_next_run(fault)

    def is_put_right(self, after):
        # A run that was killed late leaves the new page, which the next one backs up; it keeps the
        # backup of the old one under another name then.
        entries = dict(after.entries)
        backup = self.backup()
        if backup and after.bytes_of(backup) == self.new.bytes_of(self.definition):
            entries[backup] = self.new.entries[backup]
            original = entries.pop(backup + ".original", None)
            if original != self.old.entries[self.definition]:
                return False
        return entries == self.new.entries


def make_definition(items):
    lines = ["zevmenu = new ZEVMenu('0');"]
    lines += [f"zevmenu.AddItem('Item {i}', 'pages/{i}.html', '');" for i in range(items)]
    return ("\n".join(lines) + "\n").encode()


def new_template(work, name):
    """A folder with an input, a folder for temporary files, and the folder to write to."""
    template = Path(work) / "templates" / name
    for folder in ["tmp", "site"]:
        (template / folder).mkdir(parents=True)
    (template / "in.js").write_bytes(make_definition(3))
    return template


def give_to_nobody(folder):
    if IS_ROOT:
        for path in [folder, *Path(folder).rglob("*")]:
            os.chown(path, NOBODY, NOBODY, follow_symlinks=False)


def install(program, work):
    """A copy of the program with its run-time files that everybody can reach."""
    folder = Path(work) / "bin"
    folder.mkdir()
    for path in [Path(program), *Path(program).parent.glob("zevmenu*.js")]:
        shutil.copy(path, folder)
        os.chmod(folder / path.name, 0o755)
    return str(folder / Path(program).name)


def scenarios(program, work):
    """Every way in which the command line writes: (name, template, command, definition)."""
    out = "{folder}/site/menu.js"
    form = [program, "format", "{folder}/in.js", "-o", out]

    yield "format, new file", new_template(work, "new"), form, "site/menu.js"

    template = new_template(work, "replaced")
    (template / "site/menu.js").write_bytes(b"old " * 5000)
    (template / "site/menu.js").chmod(0o640)
    try:
        os.setxattr(template / "site/menu.js", "user.note", b"kept")
    except OSError:
        print("no extended attributes here: not swept")
    yield "format, replaced file", template, form, "site/menu.js"

    template = new_template(work, "own-input")
    yield ("format, own input", template,
           [program, "format", "{folder}/in.js", "-o", "{folder}/in.js"], "in.js")

    template = new_template(work, "link")
    (template / "site/real.js").write_bytes(b"old")
    (template / "site/menu.js").symlink_to("real.js")
    yield "format, through a link", template, form, "site/real.js"

    template = new_template(work, "hard-link")
    (template / "site/menu.js").write_bytes(b"old " * 500)
    os.link(template / "site/menu.js", template / "site/other.js")
    yield "format, hard links", template, form, "site/menu.js"

    template = new_template(work, "closed")
    (template / "site/menu.js").write_bytes(b"old " * 500)
    (template / "site").chmod(0o555)
    yield "format, folder that forbids new files", template, form, "site/menu.js"

    template = new_template(work, "import")
    (template / "site/menu.js").write_bytes(b"old")
    (template / "in.txt").write_bytes(b":Home|index.html\n::Seeds|seeds.html\n")
    yield ("import", template,
           [program, "import", "--format", "orletbar", "{folder}/in.txt", "-o", out],
           "site/menu.js")

    template = new_template(work, "rebase")
    (template / "site/menu.js").write_bytes(b"old")
    yield ("rebase", template,
           [program, "rebase", "--from", "/web", "--to", "/web/new", "{folder}/in.js", "-o", out],
           "site/menu.js")

    template = new_template(work, "publish")
    for name in ["in.js", "zevmenu_loader.js", "zevmenu_dom.js", "zevmenu_ns4.js"]:
        (template / "site" / name).write_bytes(b"old " + name.encode())
    yield ("publish", template, [program, "publish", "{folder}/in.js", "{folder}/site"],
           "site/in.js")


def page_scenarios(program, work):
    """The same for pages."""
    command = [program, "integrate", "--definition", "{folder}/site/menu.js",
               "--library", "{folder}/site", "{folder}/site/page.htm"]
    page = b"<html><head></head><body>" + b"<p>text</p>" * 500 + b"</body></html>\n"

    template = new_template(work, "page")
    (template / "site/page.htm").write_bytes(page)
    (template / "site/page.htm").chmod(0o640)
    (template / "site/page.htm.bak").write_bytes(b"older backup")
    yield "integrate", template, command, "site/page.htm"

    place = [*command, "--place", "before:p", "--no-backup"]
    template = new_template(work, "placed")
    (template / "site/page.htm").write_bytes(page)
    yield "integrate --place", template, place, "site/page.htm"

    template = new_template(work, "removed")
    (template / "site/page.htm").write_bytes(page)
    subprocess.run([part.replace("{folder}", str(template)) for part in place],
                   env=dict(os.environ, XDG_DATA_HOME=str(work)), check=True, capture_output=True)
    yield ("integrate --remove", template,
           [program, "integrate", "--remove", "{folder}/site/page.htm"], "site/page.htm")

    template = new_template(work, "page-hard-link")
    (template / "site/page.htm").write_bytes(page)
    os.link(template / "site/page.htm", template / "site/other.htm")
    yield ("integrate, hard links, no backup", template, [*command, "--no-backup"],
           "site/page.htm")


def run_sweeps(sweeps):
    failed = 0
    # The work is done by other processes, so that threads run side by side.
    with ThreadPoolExecutor(max_workers=2) as pool:
        for sweep, _ in zip(sweeps, pool.map(lambda sweep: sweep.sweep(), sweeps)):
            for problem in sweep.problems:
                print("FAILED", problem)
            failed += len(sweep.problems)
            print(f"{sweep.name}: {sweep.runs} runs, {len(sweep.problems)} problems", flush=True)
    return 1 if failed else 0


def may_trace():
    result = subprocess.run(["strace", "-o", "/dev/null", "true"], capture_output=True, text=True)
    if result.returncode != 0:
        print("SKIPPED: strace may not trace here:", result.stderr.strip())
    return result.returncode == 0


class Work:
    """A temporary folder that everybody can reach, and what is made in it from then on; removed with
    all it holds."""

    def __enter__(self):
        os.umask(0o022)
        self.path = tempfile.mkdtemp(prefix="zev-faults-")
        os.chmod(self.path, 0o755)
        if IS_ROOT:
            os.chown(self.path, NOBODY, NOBODY)
        return self.path

    def __exit__(self, *_):
        subprocess.run(["chmod", "-R", "u+rwX", self.path], check=True)
        shutil.rmtree(self.path)


def sweep_program(path, new_sweeps):
    """Sweeps a program; new_sweeps(program, work) gives the sweeps of the copy that is run."""
    if not may_trace():
        return SKIPPED
    with Work() as work:
        return run_sweeps(new_sweeps(install(path, work), work))


def zevmenu_sweeps(program, work):
    sweeps = []
    for name, template, command, definition in scenarios(program, work):
        give_to_nobody(template)
        sweeps.append(Sweep(name, template, command, definition, work))
    for name, template, command, page in page_scenarios(program, work):
        give_to_nobody(template)
        sweeps.append(PageSweep(name, template, command, page, work))
    return sweeps


def sweep_zevmenu(options):
    return sweep_program(options.program, zevmenu_sweeps)


def sweep_command(options):
    if not may_trace():
        return SKIPPED
    with Work() as work:
        template = Path(work) / "template"
        subprocess.run(["cp", "-a", options.template, template], check=True)
        (template / "tmp").mkdir(exist_ok=True)
        give_to_nobody(template)
        return run_sweeps([Sweep("command", template, options.command, options.definition, work)])


def main():
    parser = argparse.ArgumentParser()
    jobs = parser.add_subparsers(required=True)
    job = jobs.add_parser("zevmenu")
    job.add_argument("program")
    job.set_defaults(run=sweep_zevmenu)
    job = jobs.add_parser("command")
    job.add_argument("--template", required=True)
    job.add_argument("--definition", required=True)
    job.add_argument("command", nargs="+")
    job.set_defaults(run=sweep_command)
    options = parser.parse_args()
    return options.run(options)


if __name__ == "__main__":
    sys.exit(main())
