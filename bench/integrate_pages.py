# SPDX-License-Identifier: MIT
"""`zevmenu integrate` over many pages and over a very large one.

integrate_pages.py ZEVMENU COPY_PAGES SAMPLE_PAGES_FOLDER WORK_FOLDER [PAGES_A_FOLDER]

Prints processor time (user and system) and time by the clock over 5,000 pages, without and with
backups, as ratios of medians to programs that do the same with files and never look into a page; and
the peak memory for one page of 100 MB, as a ratio to the page's size. The record of the run, which
undoes it, is kept in the same folder and counts.
"""

import os
import shutil
import statistics
import subprocess
import sys
import time

PAGES = 5000
ROUNDS = 3
SMALLEST_BYTES, LARGEST_BYTES = 2_000, 60_000
LARGE_PAGE_BYTES = 100_000_000


def grown(page, size):
    """The page with what is in its body repeated; not a byte is changed where there is no body."""
    begin = page.lower().find(b"<body")
    begin = page.find(b">", begin) + 1 if begin >= 0 else 0
    end = page.lower().rfind(b"</body")
    if not 0 < begin < end:
        return page
    body = page[begin:end]
    return page[:begin] + body * max(1, (size - begin) // len(body)) + page[end:]


def sample_pages(sample_folder):
    samples = []
    for case in sorted(os.listdir(sample_folder)):
        with open(os.path.join(sample_folder, case, "before.htm"), "rb") as file:
            samples.append(file.read())
    return samples


def make_site(samples, folder, pages_a_folder, pages=PAGES):
    """Page sizes as on real sites: most small, a few large, in no order. Gives the pages' paths."""
    paths = []
    for number in range(pages):
        share = number * 7919 % pages / pages
        size = int(SMALLEST_BYTES * (LARGEST_BYTES / SMALLEST_BYTES) ** share)
        path = os.path.join(folder, f"part{number // pages_a_folder}", f"page{number}.htm")
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "wb") as file:
            file.write(grown(samples[number % len(samples)], size))
        paths.append(path)
    return paths


def run(command):
    """Resources that the command used. Status 1 says that a page has no place for the menu."""
    child = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    _, status, usage = os.wait4(child.pid, 0)
    child.returncode = os.waitstatus_to_exitcode(status)
    if child.returncode not in (0, 1):
        sys.exit(f"{command[0]} failed with status {child.returncode}")
    return usage


def site_seconds(command, samples, work, pages_a_folder):
    """Processor time of one run over a site of its own, all of it on the disk, and its time by the
    clock."""
    folder = os.path.join(work, "site")
    paths = make_site(samples, folder, pages_a_folder)
    os.sync()
    begin = time.monotonic()
    usage = run(command + paths)
    seconds = time.monotonic() - begin
    shutil.rmtree(folder)
    return usage.ru_utime + usage.ru_stime, seconds


def main():
    zevmenu, copy_pages, sample_folder, work = sys.argv[1:5]
    pages_a_folder = int(sys.argv[5]) if len(sys.argv) > 5 else 100
    samples = sample_pages(sample_folder)

    integrate = [zevmenu, "integrate", "--definition", os.path.join(work, "menu.js"),
                 "--library", os.path.join(work, "library")]
    os.environ["XDG_DATA_HOME"] = os.path.join(work, "data")
    contenders = {
        "without backups": integrate + ["--no-backup"],
        "with backups": integrate,
        "flush": [copy_pages, "flush"],
        "leave": [copy_pages, "leave"],
    }
    seconds = {name: [] for name in contenders}
    for _ in range(ROUNDS):
        for name, command in contenders.items():
            seconds[name].append(site_seconds(command, samples, work, pages_a_folder))
    shutil.rmtree(os.path.join(work, "data"))
    median = {name: [statistics.median(column) for column in zip(*values)]
              for name, values in seconds.items()}
    for name in ["without backups", "with backups"]:
        cpu, clock = median[name]
        print(f"integrate {PAGES} pages {name}, {pages_a_folder} a folder: {cpu:.2f} s of processor "
              f"time, {cpu / median['flush'][0]:.2f} times copying that flushes as well, "
              f"{cpu / median['leave'][0]:.2f} times copying without; by the clock "
              f"{clock / median['flush'][1]:.2f} and {clock / median['leave'][1]:.2f} times")

    path = os.path.join(work, "large.htm")
    with open(path, "wb") as file:
        file.write(grown(samples[-1], LARGE_PAGE_BYTES))
    size = os.path.getsize(path)
    print(f"integrate one page of {size / 1e6:.0f} MB: peak memory "
          f"{run(integrate + [path]).ru_maxrss * 1024 / size:.2f} times its size")


if __name__ == "__main__":
    main()
