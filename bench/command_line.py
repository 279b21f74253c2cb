# SPDX-License-Identifier: MIT
"""`zevmenu format` against copying the same bytes, and the program's start against that of `true`:
ratios of medians, in one run.

command_line.py ZEVMENU WORK_FOLDER
The peer is `dd … conv=fsync`, a process of its own as well, which writes and flushes the same
number of bytes. Rounds are interleaved, so that both see the same machine. The wall clock counts
what the disk takes; the processor time, user's and system's, is also fit for a busy machine.
"""

import os
import statistics
import subprocess
import sys
import time

ROUNDS = 15
START_ROUNDS = 200


def seconds(command):
    """Wall clock and processor seconds of one run."""
    start = time.perf_counter()
    process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = os.waitstatus_to_exitcode(status)
    if process.returncode != 0:
        raise subprocess.CalledProcessError(process.returncode, command)
    return time.perf_counter() - start, usage.ru_utime + usage.ru_stime


def medians_of(runs):
    return [statistics.median(column) for column in zip(*runs)]


def spawn_seconds(command):
    """Wall clock of one run, without what Python itself adds to the start of a process."""
    silent = (os.POSIX_SPAWN_OPEN, 1, os.devnull, os.O_WRONLY, 0)
    start = time.perf_counter()
    process = os.posix_spawnp(command[0], command, os.environ, file_actions=[silent])
    _, status = os.waitpid(process, 0)
    elapsed = time.perf_counter() - start
    if status != 0:
        raise subprocess.CalledProcessError(os.waitstatus_to_exitcode(status), command)
    return elapsed


def print_start(zevmenu, small):
    """Prints what starting costs: `true` is a program that does nothing at all. The definition goes
    to standard output, so that no disk is waited for."""
    commands = {"true": ["true"], "--version": [zevmenu, "--version"],
                "format of a small file": [zevmenu, "format", small]}
    runs = {name: [] for name in commands}
    for _ in range(START_ROUNDS):
        for name, command in commands.items():
            runs[name].append(spawn_seconds(command))
    floor = statistics.median(runs.pop("true"))
    for name, times in runs.items():
        start = statistics.median(times)
        print(f"{name}: {start * 1000:.2f} ms, {start / floor:.2f} times `true`")


def main():
    zevmenu, folder = sys.argv[1:3]
    here = os.path.dirname(os.path.abspath(__file__))
    print_start(zevmenu, os.path.join(here, "..", "samples", "site_bar.js"))
    medians = {}
    for items in (2000, 20000):
        raw = os.path.join(folder, f"raw{items}.js")
        source = os.path.join(folder, f"menu{items}.js")
        with open(raw, "wb") as file:
            subprocess.run([sys.executable, os.path.join(here, "make_definition.py"), str(items)],
                           check=True, stdout=file)
        subprocess.run([zevmenu, "format", raw, "-o", source], check=True)
        target = os.path.join(folder, "out.js")
        formatting, copying = [], []
        for _ in range(ROUNDS):
            formatting.append(seconds([zevmenu, "format", source, "-o", target]))
            copying.append(seconds(["dd", f"if={source}", f"of={target}", "bs=1M", "conv=fsync"]))
        medians[items], processor = medians_of(formatting)
        copy, copy_processor = medians_of(copying)
        print(f"format {items:6} items ({os.path.getsize(source)} bytes): "
              f"{medians[items] * 1000:6.1f} ms, {medians[items] / copy:.2f} times copy and flush; "
              f"processor {processor * 1000:5.1f} ms, {processor / copy_processor:.2f} times")
    print(f"format 20,000 against 2,000 items: {medians[20000] / medians[2000]:.1f} times the time "
          "for 10 times the items")


main()
