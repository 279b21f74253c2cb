# SPDX-License-Identifier: MIT
"""Turns the core benchmark's JSON (standard input) into ratios against memcpy of the same text."""

import json
import sys


def main():
    rates = {}
    for run in json.load(sys.stdin)["benchmarks"]:
        if run.get("run_type") == "aggregate" and run["aggregate_name"] != "median":
            continue
        name, _, size = run["run_name"].partition("/")
        if "bytes_per_second" in run:
            rates[name, int(size)] = run["bytes_per_second"]
        else:
            print(f"{run['run_name']}: {run['real_time']:.4f} {run['time_unit']}")
    for (name, size), rate in sorted(rates.items()):
        if name == "BM_Memcpy":
            continue
        print(f"{name} {size:6} items: {rate / 1e6:7.0f} MB/s, "
              f"{rate / rates['BM_Memcpy', size]:.4f} of memcpy")
    for name in sorted({name for name, _ in rates} - {"BM_Memcpy"}):
        sizes = sorted(size for run, size in rates if run == name)
        print(f"{name}: rate at {sizes[-1]} items is {rates[name, sizes[-1]] / rates[name, sizes[0]]:.2f} "
              f"of that at {sizes[0]} (1.00 is linear)")


main()
