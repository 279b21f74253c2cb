# SPDX-License-Identifier: MIT
"""`zevmenu integrate` where a site is large: time and peak memory, and what is left when it is stopped.

large_sites.py ZEVMENU SAMPLE_PAGES_FOLDER WORK_FOLDER

One page of 50 MB; 5,000 pages in one folder, named and with backups; a folder of 20,000 files, every
fourth a page, by --recursive. The last is also stopped half-way, as by Ctrl+C and as by the system,
and undone: how many pages are old, new, and neither, after each.
"""

import os
import shutil
import signal
import subprocess
import sys
import time

from integrate_pages import grown, make_site, sample_pages

LARGE_PAGE_BYTES = 50_000_000
PAGES = 5_000
OTHER_FILES = 15_000


# A process counts the memory of the one that it was started by, so that has to be a small one.
STARTER = """
import os, subprocess, sys, time
begin = time.monotonic()
child = subprocess.Popen(sys.argv[1:], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
_, status, usage = os.wait4(child.pid, 0)
print(time.monotonic() - begin, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024)
sys.exit(os.waitstatus_to_exitcode(status))
"""


def measured(command):
    """Seconds by the clock, of processor time, and peak memory in MB."""
    starter = subprocess.run([sys.executable, "-S", "-c", STARTER, *command], stdout=subprocess.PIPE,
                             text=True, check=False)
    if starter.returncode not in (0, 1):
        sys.exit(f"{command[0]} failed with status {starter.returncode}")
    return [float(figure) for figure in starter.stdout.split()]


def report(what, figures):
    print(f"{what}: {figures[0]:.2f} s by the clock, {figures[1]:.2f} s of processor time, "
          f"{figures[2]:.0f} MB at most")


def contents(paths):
    pages = []
    for path in paths:
        with open(path, "rb") as file:
            pages.append(file.read())
    return pages


def compared(pages, old, new):
    kinds = ["old" if page == old_page else "new" if page == new_page else "neither"
             for page, old_page, new_page in zip(pages, old, new)]
    return ", ".join(f"{kinds.count(kind)} {kind}" for kind in ("old", "new", "neither"))


def stop_and_undo(command, undo, paths, old, new, what, seconds):
    child = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    time.sleep(seconds)
    child.send_signal(what)
    child.wait()
    stopped = compared(contents(paths), old, new)
    status = subprocess.run(undo, stdout=subprocess.DEVNULL, check=False).returncode
    print(f"stopped by {what.name} after {seconds:.2f} s: {stopped}; "
          f"undone with status {status}: {compared(contents(paths), old, new)}")


def main():
    zevmenu, sample_folder, work = sys.argv[1:4]
    samples = sample_pages(sample_folder)
    os.environ["XDG_DATA_HOME"] = os.path.join(work, "data")
    integrate = [zevmenu, "integrate", "--definition", os.path.join(work, "menu.js"),
                 "--library", os.path.join(work, "library")]
    undo = [zevmenu, "integrate", "--undo", "last"]
    site = os.path.join(work, "site")

    page = os.path.join(work, "large.htm")
    with open(page, "wb") as file:
        file.write(grown(samples[-1], LARGE_PAGE_BYTES))
    report("one page of 50 MB", measured([*integrate, "--no-backup", page]))
    os.remove(page)

    paths = make_site(samples, site, PAGES)
    report("5,000 pages in one folder, with backups", measured(integrate + paths))
    report("undoing that", measured(undo))
    shutil.rmtree(site)

    paths = make_site(samples, site, PAGES)
    for number in range(OTHER_FILES):
        with open(os.path.join(site, "part0", f"picture{number}.png"), "wb") as file:
            file.write(b"no page")
    old = contents(paths)
    recursive = [*integrate, "--no-backup", "--recursive", site]
    figures = measured(recursive)
    report("a folder of 20,000 files, 5,000 of them pages", figures)
    new = contents(paths)
    measured(undo)
    for what in (signal.SIGINT, signal.SIGTERM):
        stop_and_undo(recursive, undo, paths, old, new, what, figures[0] / 2)
    shutil.rmtree(site)
    shutil.rmtree(os.path.join(work, "data"))


main()
