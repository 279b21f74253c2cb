# SPDX-License-Identifier: MIT
"""Turns the page engine benchmark's JSON (standard input) into ratios against looking for "<" in the
same pages, and names the hostile pages that are read slowest."""

import json
import sys

SLOWEST = 3


def main():
    rates = {}
    for run in json.load(sys.stdin)["benchmarks"]:
        if run.get("aggregate_name") == "median":
            kind, _, pages = run["run_name"].partition("/")
            rates.setdefault(kind, {})[pages] = run
    for pages, run in rates["RewritePages"].items():
        floor = rates["FindLessThanSigns"][pages]
        rate = run["bytes_per_second"]
        print(f"{pages:20} ({floor['bytes_a_sign']:4.1f} bytes a \"<\"): {rate / 1e6:5.0f} MB/s, "
              f"{rate / floor['bytes_per_second']:.3f} of memchr")
    hostile = sorted((run["bytes_per_second"], page)
                     for page, run in rates["RewriteHostilePage"].items())
    slowest = ", ".join(f"{page} {rate / 1e6:.0f} MB/s" for rate, page in hostile[:SLOWEST])
    print(f"{len(hostile)} hostile pages of 4 MB, the slowest: {slowest}")


main()
