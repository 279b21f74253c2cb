#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whoever says which version this is says the same.

usage: version_test.py SOURCE BUILD
"""

import gzip
import json
import re
import unittest

from support import listed_files, next_argument, run, version_of

SOURCE = next_argument()
BUILD = next_argument()
VERSION = version_of(SOURCE)
BIN = BUILD / "bin"
MADE = BUILD / "packaging"


class Version(unittest.TestCase):
    def test_the_programs(self):
        self.assertEqual(run(BIN / "zevmenu", "--version").stdout, f"zevmenu {VERSION}\n")
        if "editor" in listed_files(BUILD):
            self.assertEqual(run(BIN / "zevmenu-creator", "--version").stdout,
                             f"zevmenu-creator {VERSION}\n")

    def test_the_library(self):
        loader = (BIN / "zevmenu_loader.js").read_text("utf-8")
        self.assertEqual(re.findall(r"\.version ?= ?'(.*?)'", loader), [VERSION])

    def test_the_changes_begin_with_it(self):
        headings = re.findall(r"^## (\S+), \d{4}-\d\d-\d\d$",
                              (SOURCE / "CHANGELOG.md").read_text("utf-8"), re.MULTILINE)
        self.assertEqual(headings[0], VERSION)

    def test_every_manual_page(self):
        pages = sorted(MADE.rglob("zevmenu*.1.gz"))
        self.assertEqual(len(pages), len([name for names in listed_files(BUILD).values()
                                          for name in names if "/man1/" in name]))
        for page in pages:
            with self.subTest(page=page.name):
                lines = gzip.decompress(page.read_bytes()).decode("utf-8").splitlines()
                self.assertIn(f'.Os "ZEVMenu Creator {VERSION}"', lines)

    def test_the_packages(self):
        for changelog in MADE.glob("*/debian_changelog"):
            self.assertIn(f"({VERSION}-", changelog.read_text("utf-8").splitlines()[0])
        package = json.loads((BUILD / "npm/package.json").read_text("utf-8"))
        self.assertEqual(package["version"], VERSION)
        for metainfo in MADE.glob("*.metainfo.xml"):
            self.assertEqual(re.findall(r'<release version="(.*?)"', metainfo.read_text("utf-8")),
                             [VERSION])


if __name__ == "__main__":
    unittest.main()
