#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""An installation has what it is to have, works wherever it lies, and is never written.

usage: install_test.py SOURCE BUILD CMAKE
"""

import os
import shutil
import stat
import tempfile
import unittest
from pathlib import Path

from support import (NOBODY, as_ordinary_user, bytes_below, environment, files_below, listed_files,
                     next_argument, run, start_until)

SOURCE = next_argument()
BUILD = next_argument()
CMAKE = next_argument()
LISTED = sorted(path for paths in listed_files(BUILD).values() for path in paths)
LIBRARY = ["zevmenu_dom.js", "zevmenu_loader.js", "zevmenu_ns4.js"]


class Installation(unittest.TestCase):
    """One of this build, moved after it was made, in folders with blanks and accents."""

    @classmethod
    def setUpClass(cls):
        cls.folder = Path(tempfile.mkdtemp(prefix="zev install ")).resolve()
        cls.folder.chmod(0o755)
        run(CMAKE, "--install", BUILD, "--prefix", cls.folder / "first")
        cls.root = cls.folder / "Programme für Menüs" / "zev"
        cls.root.parent.mkdir()
        (cls.folder / "first").rename(cls.root)

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    def home(self, name, owner=None):
        home = self.folder / name
        home.mkdir()
        if owner and os.geteuid() == 0:
            os.chown(home, owner, owner)
        return home

    def test_has_the_listed_files_and_no_other(self):
        self.assertEqual(files_below(self.root), LISTED)

    def test_has_every_manual_page_sample_and_page_of_the_manual(self):
        have = set(LISTED)
        for folder, pattern, target, end in [
                ("packaging/man", "*.1", "share/man/man1", ".gz"),
                ("help", "*.html", "share/zevmenu-creator/help", ""),
                ("help", "*.css", "share/zevmenu-creator/help", ""),
                ("help/images", "*", "share/zevmenu-creator/help/images", ""),
                ("samples", "*.js", "share/doc/zevmenu/examples", ""),
                ("samples/images", "*", "share/doc/zevmenu/examples/images", "")]:
            sources = list((SOURCE / folder).glob(pattern))
            self.assertTrue(sources, folder)
            for source in sources:
                self.assertIn(f"{target}/{source.name}{end}", have,
                              "is the build configured since this file came?")

    def test_everybody_may_read_all_and_run_the_programs(self):
        for name in LISTED:
            mode = stat.S_IMODE((self.root / name).stat().st_mode)
            self.assertIn(mode & 0o555, (0o555,) if name.startswith("bin/") else (0o444, 0o555), name)

    def test_below_another_root_it_lies_where_it_will_be(self):
        target = self.folder / "staged"
        run(CMAKE, "--install", BUILD, "--prefix", "/opt/zev", "--component", "command",
            env=environment(DESTDIR=target))
        self.assertEqual(files_below(target),
                         sorted(f"opt/zev/{path}" for path in listed_files(BUILD)["command"]))

    def test_the_command_line_finds_the_library(self):
        home = self.home("site of nobody", NOBODY)
        (home / "menu.js").write_bytes((SOURCE / "samples/site_bar.js").read_bytes())
        run(self.root / "bin/zevmenu", "publish", "menu.js", "naïve site", cwd=home,
            env=environment(HOME=home), **as_ordinary_user())
        self.assertEqual(files_below(home / "naïve site"), sorted([*LIBRARY, "menu.js"]))
        for name in LIBRARY:
            self.assertEqual((home / "naïve site" / name).read_bytes(),
                             (self.root / "share/zevmenu-creator" / name).read_bytes())

    def start_editor(self, home, **options):
        """Starts the editor; gives back the person's folder once the manual, which is last, is in."""
        folder = home / ".local/share/zevmenu-creator"
        last = [name for name in LISTED if "/zevmenu-creator/help/" in name][-1]
        wanted = (self.root / last).read_bytes()
        copy = folder / "help" / last.split("/help/")[1]
        start_until([self.root / "bin/zevmenu-creator"],
                    lambda: copy.exists() and copy.read_bytes() == wanted,
                    cwd=home, env=environment(HOME=home), **options)
        return folder

    def check_editor(self, home, **options):
        before = bytes_below(self.root)
        folder = self.start_editor(home, **options)
        shared = self.root / "share/zevmenu-creator"
        self.assertEqual(bytes_below(folder), bytes_below(shared))
        # As after an upgrade: what is older is brought up to date, what is the person's stays.
        (folder / "zevmenu_dom.js").write_text("an older version")
        (folder / "help/support.html").unlink()
        (folder / "orlet_temp.js").write_text("mine")
        self.start_editor(home, **options)
        self.assertEqual(bytes_below(folder), bytes_below(shared) | {"orlet_temp.js": b"mine"})
        self.assertEqual(bytes_below(self.root), before)

    def test_the_editor_of_an_ordinary_user_fills_and_refreshes_the_users_folder(self):
        self.check_editor(self.home("Zoë", NOBODY), **as_ordinary_user())

    def test_the_editor_of_the_installations_owner_does_the_same(self):
        self.check_editor(self.home("owner"))


if __name__ == "__main__":
    unittest.main()
