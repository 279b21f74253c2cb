"""`zevmenu format` against copying the same bytes: ratios of medians, in one run.

command_line.py ZEVMENU WORK_FOLDER
The peer is `dd … conv=fsync`, a process of its own as well, which writes and flushes the same
number of bytes. Rounds are interleaved, so that both see the same machine.
"""

import os
import statistics
import subprocess
import sys
import time

ROUNDS = 15


def seconds(command):
    start = time.perf_counter()
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    return time.perf_counter() - start


def main():
    zevmenu, folder = sys.argv[1:3]
    here = os.path.dirname(os.path.abspath(__file__))
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
        medians[items] = statistics.median(formatting)
        ratio = medians[items] / statistics.median(copying)
        print(f"format {items:6} items ({os.path.getsize(source)} bytes): "
              f"{medians[items] * 1000:6.1f} ms, {ratio:.2f} times copy and flush")
    print(f"format 20,000 against 2,000 items: {medians[20000] / medians[2000]:.1f} times the time "
          "for 10 times the items")


main()
