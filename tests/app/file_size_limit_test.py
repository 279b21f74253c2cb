#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The editor outlives a file that would grow beyond the user's limit for files.

usage: file_size_limit_test.py EDITOR
"""

import signal
import subprocess
import sys
import time
from pathlib import Path

TIME_LIMIT_SECONDS = 60


def is_ignored(process):
    """Whether the process ignores the signal that such a write sends."""
    status = Path(f"/proc/{process.pid}/status").read_text()
    mask = next(line.split()[1] for line in status.splitlines() if line.startswith("SigIgn:"))
    return bool(int(mask, 16) >> (signal.SIGXFSZ - 1) & 1)


def main():
    # Popen gives the signal, which Python ignores, back its usual effect.
    process = subprocess.Popen([sys.argv[1]])
    try:
        end = time.monotonic() + TIME_LIMIT_SECONDS
        while not is_ignored(process):
            if process.poll() is not None:
                sys.exit(f"the editor ended with status {process.returncode}")
            if time.monotonic() > end:
                sys.exit("the editor does not ignore the signal")
            time.sleep(0.1)
        process.send_signal(signal.SIGXFSZ)
        time.sleep(0.5)
        if process.poll() is not None:
            sys.exit(f"the signal ended the editor with status {process.returncode}")
    finally:
        process.kill()
        process.wait()


if __name__ == "__main__":
    main()
