#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Proves on made-up trees that wrong names and wrong formats are caught and right ones are not.

usage: style_check_test.py ROOT
"""

import json
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

CHECK = Path(__file__).with_name("style_check.py")
ROOT = Path(sys.argv.pop())

RIGHT = """#include "model/menu.h"

namespace zev {

static int rowOf(const MenuProp& prop) {
    return prop.Columns;
}

int frmPath::txtURL_Validate(const MenuProp& StrProp) {
    const int rowCount = rowOf(StrProp);
    m_count += rowCount;
    return m_count;
}

}  // namespace zev
"""
HEADER = """#pragma once

namespace zev {

struct MenuProp {
    int Columns = 0;
};

class frmPath {
  public:
    int txtURL_Validate(const MenuProp& StrProp);

  private:
    int m_count = 0;
};

}  // namespace zev
"""


class Tree:
    def __init__(self, folder, source=RIGHT, header=HEADER):
        self.root = Path(folder)
        for name in (".clang-tidy", ".clang-format"):
            shutil.copy(ROOT / name, self.root / name)
        self.build = self.root / "build"
        for path in ("model", "build"):
            (self.root / path).mkdir()
        self.source = self.root / "model/menu.cpp"
        self.header = self.root / "model/menu.h"
        self.source.write_text(source)
        self.header.write_text(header)
        (self.build / "compile_commands.json").write_text(json.dumps([{
            "directory": str(self.root), "file": str(self.source),
            "command": f"c++ -std=c++20 -Wall -Wno-restrict -I{self.root} -c {self.source}"}]))

    def run(self, what):
        result = subprocess.run([sys.executable, CHECK, what, self.root, self.build],
                                capture_output=True, text=True)
        return result.returncode, result.stdout + result.stderr


class Style(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def tree(self, **files):
        return Tree(self.folder.name, **files)

    def test_right_names_and_the_vocabulary_pass_and_are_remembered(self):
        tree = self.tree()
        status, output = tree.run("names")
        self.assertEqual((status, output.splitlines()[-1]), (0, "1 sources, 1 looked at, 0 wrong"))
        self.assertIn("1 sources, 0 looked at, 0 wrong", tree.run("names")[1])

    def test_each_wrong_name_is_caught(self):
        for right, wrong in [("rowOf", "RowOf"), ("rowCount", "RowCount"),
                             ("rowCount", "row_count"), ("StrProp", "Prop")]:
            with self.subTest(wrong=wrong), tempfile.TemporaryDirectory() as folder:
                status, output = Tree(folder, source=RIGHT.replace(right, wrong)).run("names")
                self.assertEqual(status, 1, output)
                self.assertIn(f"'{wrong}'", output)

    def test_a_wrong_name_in_a_header_is_caught(self):
        for right, wrong in [("m_count", "count"), ("frmPath", "thing"),
                             ("txtURL_Validate", "Validate_URL"), ("Columns", "columns_")]:
            with self.subTest(wrong=wrong), tempfile.TemporaryDirectory() as folder:
                status, output = Tree(folder, source=RIGHT.replace(right, wrong),
                                      header=HEADER.replace(right, wrong)).run("names")
                self.assertEqual(status, 1, output)
                self.assertIn(f"'{wrong}'", output)

    def test_what_nothing_uses_is_caught(self):
        unused = RIGHT.replace("static int rowOf", "static int idle() {\n    return 1;\n}\n\n"
                               "static int rowOf")
        status, output = self.tree(source=unused).run("names")
        self.assertEqual(status, 1, output)
        self.assertIn("idle", output)

    def test_a_changed_header_is_looked_at_again(self):
        tree = self.tree()
        tree.run("names")
        tree.header.write_text(HEADER.replace("m_count", "count"))
        tree.source.write_text(RIGHT)
        self.assertEqual(tree.run("names")[0], 1)

    def test_a_wrong_format_is_caught(self):
        tree = self.tree()
        self.assertEqual(tree.run("format"), (0, ""))
        for wrong in (RIGHT.replace("    return m_count", "  return m_count"),
                      RIGHT.replace("    m_count +=", "    if (rowCount) {\n        return 1;\n"
                                    "    }\n    m_count +=")):
            tree.source.write_text(wrong)
            self.assertEqual(tree.run("format")[0], 1)

    def test_a_tree_without_sources_fails(self):
        tree = self.tree()
        tree.source.unlink()
        tree.header.unlink()
        self.assertEqual(tree.run("format")[0], 1)
        self.assertEqual(tree.run("names")[0], 1)


if __name__ == "__main__":
    unittest.main()
