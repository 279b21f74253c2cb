#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Proves that the fault sweep passes a careful writer and catches careless ones.

usage: fault_sweep_test.py PROGRAM
"""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

SWEEP = Path(__file__).with_name("fault_sweep.py")
PROGRAM = sys.argv.pop()


def sweep(*command):
    """Exit status and output of the sweep of a command that writes site/menu.js."""
    with tempfile.TemporaryDirectory() as template:
        (Path(template) / "site").mkdir()
        (Path(template) / "in.js").write_text("zevmenu = new ZEVMenu('0');\n")
        (Path(template) / "site/menu.js").write_text("old " * 1000)
        result = subprocess.run(
            [sys.executable, SWEEP, "command", "--template", template,
             "--definition", "site/menu.js", "--", *command], capture_output=True, text=True)
    if result.returncode == 77:
        raise unittest.SkipTest(result.stdout)
    return result.returncode, result.stdout


class FaultSweep(unittest.TestCase):
    def test_a_careful_writer_passes(self):
        # The sweep runs it as somebody else when root, who may not reach the build folder.
        with tempfile.TemporaryDirectory() as folder:
            Path(folder).chmod(0o755)
            subprocess.run(["cp", PROGRAM, folder], check=True)
            program = str(Path(folder) / Path(PROGRAM).name)
            Path(program).chmod(0o755)
            status, output = sweep(program, "format", "{folder}/in.js", "-o",
                                   "{folder}/site/menu.js")
        self.assertEqual(status, 0, output)

    def test_a_file_cut_short_is_caught(self):
        status, output = sweep("/bin/cp", "{folder}/in.js", "{folder}/site/menu.js")
        self.assertEqual(status, 1, output)
        self.assertIn("site/menu.js was not flushed", output)
        self.assertIn("site/menu.js was written without a copy", output)
        self.assertIn("site/menu.js is neither the old nor the new one", output)

    def test_what_a_killed_run_leaves_behind_is_caught(self):
        status, output = sweep("/bin/sed", "-i", "s/old/new/g", "{folder}/site/menu.js")
        self.assertEqual(status, 1, output)
        self.assertIn("the next run did not put all right", output)

    def test_a_failure_without_its_status_is_caught(self):
        careless = "open(F, '>', $ARGV[0]); print F 'new'; close(F); exit(0)"
        status, output = sweep("/usr/bin/perl", "-e", careless, "{folder}/site/menu.js")
        self.assertEqual(status, 1, output)
        self.assertIn("status 0, but the definition was not written", output)

    def test_a_command_that_writes_nothing_is_caught(self):
        status, output = sweep("/bin/true")
        self.assertEqual(status, 1, output)
        self.assertIn("is as before", output)


if __name__ == "__main__":
    unittest.main()
