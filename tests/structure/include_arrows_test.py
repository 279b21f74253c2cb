#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Proves on a made-up tree that wrong includes are caught and right ones are not."""

import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CHECK = Path(__file__).with_name("include_arrows.py")


def run_on(files):
    """Exit status and printed lines of the check on a tree of {path: text}."""
    with tempfile.TemporaryDirectory() as folder:
        for path, text in files.items():
            file = Path(folder) / path
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text)
        result = subprocess.run([sys.executable, CHECK, folder], capture_output=True, text=True)
    return result.returncode, result.stdout.splitlines()


class IncludeArrows(unittest.TestCase):
    def test_right_includes_pass(self):
        status, lines = run_on({
            "model/menu.cpp": '#include "model/menu.h"\n#include <string>\n',
            "script/writer.cpp": '#include "script/writer.h"\n#include "model/menu.h"\n',
            "importers/a.cpp": '#include "script/writer.h"\n',
            "integrator/engine.cpp": '#include "platform/file_system.h"\n#include "model/menu.h"\n',
            "integrator/wizard/frm_integrator.cpp": "#include <QDialog>\n",
            "platform/posix/disk.cpp": '#include "platform/file_system.h"\n#include <unistd.h>\n',
            "platform/qt/box.cpp": '#include <QMessageBox>\n#include "platform/message_box.h"\n',
            "dialogs/prop.cpp": '#include <QtWidgets/QDialog>\n#include "script/writer.h"\n',
            "app/main.cpp": '#include "platform/qt/box.h"\n#include "dialogs/prop.h"\n'
                            '#include "main.moc"\n',
            "cli/main.cpp": '#include "platform/posix/disk.h"\n#include <CLI/CLI.hpp>\n',
            "tests/model/menu_test.cpp": "#include <QString>\n",
        })
        self.assertEqual((status, lines), (0, ["19 includes, 0 wrong"]))

    def test_every_wrong_include_is_caught_with_file_and_line(self):
        wrong = [
            ("model/a.cpp", '"script/writer.h"'),
            ("model/a.cpp", '"platform/file_system.h"'),
            ("model/a.h", "<QString>"),
            ("model/a.h", "<QtCore/QString>"),
            ("script/a.cpp", '"app/frm_main.h"'),
            ("script/a.cpp", "<QtGlobal>"),
            ("importers/a.cpp", '"platform/file_system.h"'),
            ("integrator/engine.cpp", '"app/frm_main.h"'),
            ("integrator/engine.cpp", "<QDialog>"),
            ("platform/shell.h", '"model/menu.h"'),
            ("text/ascii.h", '"model/menu.h"'),
            ("html/page.h", '"script/writer.h"'),
            ("html/page.h", '"platform/file_system.h"'),
            ("library/files.h", "<QFile>"),
            ("integrator/engine.cpp", '"integrator/wizard/frm_integrator.h"'),
            ("model/a.cpp", '"library/files.h"'),
            ("platform/shell.h", '"platform/posix/shell.h"'),
            ("platform/shell.h", "<QWidget>"),
            ("platform/posix/a.cpp", "<QFile>"),
            ("platform/posix/a.cpp", '"platform/fake/a.h"'),
            ("platform/fake/a.cpp", '"platform/qt/a.h"'),
            ("platform/qt/a.cpp", '"model/menu.h"'),
            ("dialogs/a.cpp", '"app/frm_main.h"'),
            ("dialogs/a.cpp", '"platform/qt/box.h"'),
            ("app/a.cpp", '"platform/fake/box.h"'),
            ("cli/a.cpp", "<QCoreApplication>"),
            ("cli/a.cpp", '"platform/qt/box.h"'),
            ("cli/a.cpp", '"dialogs/prop.h"'),
            ("cli/a.cpp", '"a.h"'),
        ]
        for path, header in wrong:
            with self.subTest(path=path, header=header):
                status, lines = run_on({path: f"#pragma once\n#  include {header}\n"})
                self.assertEqual(status, 1)
                self.assertEqual(len(lines), 2, lines)
                self.assertTrue(lines[0].startswith(f"{path}:2: "), lines)

    def test_our_own_header_in_angle_brackets_is_caught(self):
        status, lines = run_on({"model/a.h": "", "script/a.cpp": "#include <model/a.h>\n"})
        self.assertEqual(status, 1, lines)

    def test_a_tree_without_sources_fails(self):
        status, lines = run_on({"readme.txt": "nothing"})
        self.assertEqual(status, 1, lines)


if __name__ == "__main__":
    unittest.main()
