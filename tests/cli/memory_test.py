# SPDX-License-Identifier: MIT
"""Holds `zevmenu format` to memory and time in proportion to its input.

    memory_test.py ZEVMENU MEGABYTES

Each case is a definition of about that size that is all one thing: one line, one kind of line, or
one menu within another. The program, all of it, may take up to ten times the file's size in memory.
"""

import os
import subprocess
import sys
import tempfile

LIMIT = 10
SECONDS_PER_MEGABYTE = 1
TOP = b"zevmenu = new ZEVMenu('0');\n"

# The child waits for the program, so that what it counts is that program's alone.
MEASURE = """
import resource, subprocess, sys
status = subprocess.run(sys.argv[1:], stderr=subprocess.DEVNULL).returncode
used = resource.getrusage(resource.RUSAGE_CHILDREN)
print(status, used.ru_maxrss * 1024, used.ru_utime + used.ru_stime)
"""


def one_line(before, piece, after):
    return lambda size: TOP + before + piece * (size // len(piece)) + after + b"\n"


def many_lines(line):
    return lambda size: TOP + line * (size // len(line))


def levels(size):
    """Each item opens a menu with one item; the ids of the menus make up most of the file."""
    parts = [TOP, b"zevmenu.AddItem('x', '', '');\n"]
    menu_id = b"1"
    while size > 0:
        parts.append(b"zevmenu = new ZEVMenu('" + menu_id +
                     b"');\nzevmenu.columns = 2;\nzevmenu.AddItem('x', '', '');\n")
        size -= len(parts[-1])
        menu_id += b"i1"
    return b"".join(parts)


# A byte 0x80 is a line that is not UTF-8, and three bytes of it.
CASES = {
    "caption": one_line(b"zevmenu.AddItem('", b"x", b"', '', '');"),
    "caption of equals signs": one_line(b"zevmenu.AddItem('", b"=", b"', '', '');"),
    "caption of escaped apostrophes": one_line(b"zevmenu.AddItem('~", b"\\'", b"', '', '');"),
    "caption in Windows-1252": one_line(b"zevmenu.AddItem('", b"\x80", b"', '', '');"),
    "link of escaped apostrophes": one_line(b"zevmenu.AddRollover('", b"\\'", b"', '', '', '');"),
    "image in Windows-1252": one_line(b"zevmenu.AddRollover('', '", b"\x80", b"', '', '');"),
    "property": one_line(b"zevmenu.divider = '", b"x", b"';"),
    "property in Windows-1252":
        one_line(b"zevmenu.AddItem('', '', '');\nzevmenu.divider = '", b"\x80", b"';"),
    "name of a property": one_line(b"zevmenu.", b"x", b" = 1;"),
    "id of a menu": one_line(b"zevmenu = new ZEVMenu('", b"1", b"');"),
    "comment": one_line(b"//", b"x", b""),
    "comment in Windows-1252": one_line(b"//", b"\x80", b""),
    "line without a meaning": one_line(b"", b"zev", b""),
    "lines without a meaning": many_lines(b"zev\n"),
    "properties of no menu": many_lines(b"zevmenu = new ZEVMenu('7');\nzevmenu.=;\n"),
    "items": many_lines(b"zevmenu.AddItem('','','');\n"),
    "empty lines": many_lines(b"\n"),
    "levels": levels,
}


def cost_of(arguments):
    """Exit status, largest memory in bytes and processor time in seconds of a run."""
    child = subprocess.run([sys.executable, "-c", MEASURE, *arguments], capture_output=True,
                           text=True, check=True)
    status, memory, seconds = child.stdout.split()
    return int(status), int(memory), float(seconds)


def problem_of(program, folder, size, make):
    path = os.path.join(folder, "in.js")
    with open(path, "wb") as file:
        file.write(make(size))
    size = os.path.getsize(path)
    output = os.path.join(folder, "out.js")
    status, memory, seconds = cost_of([program, "format", path, "-o", output])
    ratio = memory / size
    print(f"  {ratio:4.1f} times {size / 1e6:.1f} MB, {seconds:.1f} s")
    if status not in (0, 1):
        return f"status {status}"
    if ratio > LIMIT:
        return f"takes {ratio:.1f} times its size in memory"
    if seconds > 2 + SECONDS_PER_MEGABYTE * size / 1e6:
        return f"takes {seconds:.1f} seconds"
    return ""


def main():
    program, size = sys.argv[1], int(float(sys.argv[2]) * 1e6)
    problems = []
    with tempfile.TemporaryDirectory() as folder:
        for name, make in CASES.items():
            print(name)
            problem = problem_of(program, folder, size, make)
            if problem:
                problems.append(f"{name}: {problem}")
    print("\n".join(problems))
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
