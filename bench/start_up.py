# SPDX-License-Identifier: MIT
"""Start of the editor to its painted window, and its memory then, under a virtual display.

start_up.py EDITOR PEER DEFINITION
The display's frame buffer is watched from outside: a program counts as painted from the moment
its picture stays what it will be three seconds later (the blinking caret excepted). PEER is an
empty window of the same toolkit, timed in the same run: the floor that the machine sets. Settings
and data are a new person's: what earlier runs left behind is neither read nor added to.
"""

import glob
import mmap
import os
import statistics
import subprocess
import sys
import tempfile
import time

ROUNDS = 7
WIDTH, HEIGHT = 1280, 800
# Pixels that may differ in a window that counts as painted: a caret, a focus line.
TOLERATED_BYTES = 4 * 400


def start_display(folder):
    """Starts Xvfb on a free display; returns the process, its name and its mapped frame buffer."""
    read_end, write_end = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write_end), "-fbdir", folder, "-screen", "0",
         f"{WIDTH}x{HEIGHT}x24", "-nolisten", "tcp"],
        pass_fds=[write_end], stderr=subprocess.DEVNULL)
    os.close(write_end)
    with os.fdopen(read_end) as pipe:
        display = ":" + pipe.readline().strip()
    with open(glob.glob(os.path.join(folder, "Xvfb_screen0"))[0], "rb") as file:
        frame = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
    return server, display, frame


def difference(first, second):
    """Number of differing bytes, counted by rows so that it stays cheap."""
    if first == second:
        return 0
    stride = WIDTH * 4
    return sum(sum(a != b for a, b in zip(first[at:at + stride], second[at:at + stride]))
               for at in range(0, len(first), stride)
               if first[at:at + stride] != second[at:at + stride])


def memory_mib(pid):
    """Resident memory of the process, shared libraries included, in MiB."""
    with open(f"/proc/{pid}/status") as status:
        for line in status:
            if line.startswith("VmRSS:"):
                return int(line.split()[1]) / 1024
    raise RuntimeError("no VmRSS")


def measure(command, environment, frame):
    """Seconds from start to painted, and resident memory in MiB when the window has settled."""
    pictures = []
    start = time.perf_counter()
    program = subprocess.Popen(command, env=environment, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    last = None
    while time.perf_counter() - start < 3:
        picture = frame[-WIDTH * HEIGHT * 4:]
        if picture != last:
            pictures.append((time.perf_counter() - start, picture))
            last = picture
        time.sleep(0.002)
    memory = memory_mib(program.pid)
    program.kill()
    program.wait()
    time.sleep(0.3)
    final = pictures[-1][1]
    if difference(pictures[0][1], final) < TOLERATED_BYTES:
        raise RuntimeError(f"{command[0]} painted nothing")
    painted = pictures[-1][0]
    for moment, picture in reversed(pictures):
        if difference(picture, final) > TOLERATED_BYTES:
            break
        painted = moment
    return painted, memory


def main():
    editor, peer, definition = sys.argv[1:4]
    with tempfile.TemporaryDirectory() as folder:
        server, display, frame = start_display(folder)
        environment = dict(os.environ, DISPLAY=display, QT_QPA_PLATFORM="xcb",
                           XDG_CONFIG_HOME=folder, XDG_DATA_HOME=folder)
        results = {"editor": [], "empty window": []}
        try:
            for _ in range(ROUNDS):
                results["editor"].append(measure([editor, definition], environment, frame))
                results["empty window"].append(measure([peer], environment, frame))
        finally:
            server.terminate()
            server.wait()
    medians = {}
    for name, rounds in results.items():
        medians[name] = [statistics.median(values) for values in zip(*rounds)]
        print(f"{name}: painted after {medians[name][0] * 1000:.0f} ms, "
              f"{medians[name][1]:.0f} MiB resident")
    print(f"editor against empty window: {medians['editor'][0] / medians['empty window'][0]:.2f} "
          f"times the time, {medians['editor'][1] / medians['empty window'][1]:.2f} times the memory")


main()
