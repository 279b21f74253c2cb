#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Kills the editor at random moments: no file is damaged and no finished command lost.

usage: kill_test.py KILL_DRIVER RUN_TIME_FOLDER ROUNDS [SEED]

Exit status: 0 all is well, 1 something was lost, 2 wrong use.
"""

import random
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

RUN_TIME_FILES = ["zevmenu_loader.js", "zevmenu_ns4.js", "zevmenu_dom.js", "zevmenu.html"]
COMMANDS = 1500
# A definition as the program writes it, but for a line that a save would drop.
DEFINITION = b"// by hand\r\nzevmenu = new ZEVMenu('0');\r\nzevmenu.AddItem('Home', 'home.html', '');\r\n"


def new_folder(work, name, run_time_folder):
    folder = work / name
    (folder / "program").mkdir(parents=True)
    (folder / "site").mkdir()
    for file in RUN_TIME_FILES:
        shutil.copy(run_time_folder / file, folder / "program")
    (folder / "site/menu.js").write_bytes(DEFINITION)
    return folder


def states_of(output):
    """(word, menu, file, "saved" or "changed") of each whole line."""
    return [tuple(line.split()) for line in output.splitlines(keepends=True)
            if line.endswith("\n")]


def run(driver, *arguments):
    done = subprocess.run([driver, *arguments], capture_output=True, text=True, timeout=120)
    if done.returncode != 0:
        raise RuntimeError(f"{arguments}: status {done.returncode}: {done.stderr}")
    return states_of(done.stdout)


def timed_run(driver, folder):
    """What the editor says that nobody kills, and the seconds from its first command to its last."""
    with subprocess.Popen([driver, "edit", folder, str(COMMANDS)], stdout=subprocess.PIPE,
                          text=True) as editor:
        first = editor.stdout.readline()
        start = time.monotonic()
        rest = editor.stdout.read()
        duration = time.monotonic() - start
    if editor.returncode != 0:
        raise RuntimeError(f"status {editor.returncode}")
    return states_of(first + rest), duration


def kill_after(driver, folder, seconds):
    """What the editor had said when it was killed so long after its first command."""
    with subprocess.Popen([driver, "edit", folder, str(COMMANDS)], stdout=subprocess.PIPE,
                          text=True) as editor:
        first = editor.stdout.readline()
        time.sleep(seconds)
        editor.kill()
        rest = editor.stdout.read()
    return states_of(first + rest), editor.returncode


def problem_of(said, restored, reference):
    """What is wrong with what the next start shows, or None. The command that was at work may be
    done or not; its menu and its file may be."""
    count = len(said)
    if said != reference[:count]:
        return "the editor did not do what it did before"
    if count == 0:
        return "the editor said nothing"
    word, menu, file, _ = restored
    possible = reference[count - 1:count + 1]
    if file not in [state[2] for state in possible]:
        return "the definition is damaged"
    found = [state for state in possible if state[1] == menu and state[2] == file]
    if not found:
        return "a finished command is lost"
    if word == "silent" and menu != file and "saved" not in [state[3] for state in found]:
        return "nothing was offered"
    return None


def kill_rounds(driver, run_time_folder, work, rounds, seed):
    chance = random.Random(seed)
    reference, duration = timed_run(driver, new_folder(work, "reference", run_time_folder))
    failed = offered = killed = 0
    for number in range(rounds):
        folder = new_folder(work, str(number), run_time_folder)
        seconds = chance.uniform(0, duration)
        said, status = kill_after(driver, folder, seconds)
        killed += status != 0
        restored = run(driver, "restore", folder)
        problem = problem_of(said, restored[0], reference)
        offered += restored[0][0] == "offered"
        if problem:
            failed += 1
            print(f"FAILED round {number}, after {len(said)} commands: {problem}")
        shutil.rmtree(folder)
    print(f"{rounds} rounds: killed {killed}, offered {offered}, failed {failed}")
    # An editor that always came to its end, or never had anything to offer, has shown nothing.
    return failed or killed < rounds / 2 or offered < rounds / 3


def main():
    if len(sys.argv) not in (4, 5):
        print(__doc__, file=sys.stderr)
        return 2
    seed = int(sys.argv[4]) if len(sys.argv) == 5 else random.randrange(10 ** 6)
    print(f"seed {seed}")
    with tempfile.TemporaryDirectory() as work:
        return 1 if kill_rounds(sys.argv[1], Path(sys.argv[2]), Path(work), int(sys.argv[3]),
                                seed) else 0


if __name__ == "__main__":
    sys.exit(main())
