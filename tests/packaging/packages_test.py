#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What scripts/package makes.

usage: packages_test.py ROOT

The packages are built a second time, from the source archive, for the comparison: that takes minutes.
"""

import json
import os
import re
import shutil
import subprocess
import tarfile
import tempfile
import unittest
from pathlib import Path

from support import next_argument, run, version_of

ROOT = next_argument()
PACKAGES = ROOT / "build/package"
VERSION = version_of(ROOT)
NAME = f"zevmenu-creator-{VERSION}"
REVISION = "0zev1"


def the_only(pattern):
    found = list(PACKAGES.glob(pattern))
    assert len(found) == 1, (pattern, found)
    return found[0]


def field(package, name):
    return run("dpkg-deb", "--field", package, name).stdout.strip()


def content(package):
    """{path: [mode, owner, date, time]} of the files and folders of a package."""
    lines = run("dpkg-deb", "--contents", package, env=os.environ | {"TZ": "UTC"}).stdout.splitlines()
    return {line.split(None, 5)[5]: line.split(None, 5)[:2] + line.split(None, 5)[3:5]
            for line in lines}


class Packages(unittest.TestCase):
    def setUp(self):
        self.command = the_only("zevmenu_*.deb")
        self.editor = the_only("zevmenu-creator_*.deb")

    def test_no_file_is_in_both(self):
        files = [{path for path in content(package) if not path.endswith("/")}
                 for package in (self.command, self.editor)]
        self.assertTrue(all(files))
        self.assertEqual(files[0] & files[1], set())

    def test_they_hold_what_an_installation_lists(self):
        listed = (PACKAGES / "build/installed_files.txt").read_text("utf-8").splitlines()
        for component, package in (("command", self.command), ("editor", self.editor)):
            self.assertEqual(sorted(path for path in content(package) if not path.endswith("/")),
                             sorted(f"./usr/{line.split(' ', 1)[1]}" for line in listed
                                    if line.startswith(component + " ")))

    def test_all_belongs_to_root_and_is_as_old_as_the_commit(self):
        date = run("git", "log", "-1", "--date=format-local:%Y-%m-%d %H:%M", "--format=%cd", cwd=ROOT,
                   env=os.environ | {"TZ": "UTC"}).stdout.split()
        for package in (self.command, self.editor):
            for path, (mode, owner, *age) in content(package).items():
                self.assertEqual(owner, "root/root", path)
                self.assertEqual(age, date, path)
                self.assertIn(mode, ("drwxr-xr-x", "-rwxr-xr-x", "-rw-r--r--"), path)

    def test_they_name_version_architecture_and_each_other(self):
        architecture = run("dpkg", "--print-architecture").stdout.strip()
        for package in (self.command, self.editor):
            self.assertEqual(field(package, "Version"), f"{VERSION}-{REVISION}")
            self.assertEqual(field(package, "Architecture"), architecture)
        self.assertIn(f"zevmenu (= {VERSION}-{REVISION})", field(self.editor, "Depends"))

    def test_each_says_what_it_is(self):
        summaries = [field(package, "Description").splitlines()[0]
                     for package in (self.command, self.editor)]
        self.assertEqual(summaries, ["menus of web sites on the command line, and their script library",
                                     "editor for cascading menus on web sites"])

    def test_the_command_line_needs_no_display(self):
        names = set(re.findall(r"[a-z][a-z0-9+.-]+(?=[ ,]|$)", field(self.command, "Depends")))
        self.assertEqual(names, {"libc6"})

    def test_the_command_line_loads_the_c_library_alone(self):
        with tempfile.TemporaryDirectory() as folder:
            run("dpkg-deb", "--raw-extract", self.command, folder)
            headers = run("objdump", "--private-headers", f"{folder}/usr/bin/zevmenu").stdout
        # The loader itself, on some machines by name, is there before any library.
        names = [name for name in re.findall(r"NEEDED +(\S+)", headers) if not name.startswith("ld-linux")]
        self.assertEqual(names, ["libc.so.6"])

    def test_the_editor_needs_the_engine_of_its_preview(self):
        depends = field(self.editor, "Depends")
        for name in ("libqt6widgets6", "libqt6svg6", "libqt6webenginewidgets6", "qt6-qpa-plugins",
                     "xdg-utils"):
            self.assertRegex(depends, rf"\b{name}\b")

    def test_lintian_finds_no_error_and_no_warning(self):
        if not shutil.which("lintian"):
            self.skipTest("lintian is not installed")
        # As root it only adds a warning of its own.
        result = run("lintian", "--allow-root", "-EvIL", "+pedantic", "--fail-on", "none",
                     self.command, self.editor)
        print(result.stdout)
        self.assertNotRegex(result.stdout, r"(?m)^[EW]:")
        self.assertNotRegex(result.stdout, r"(?m)^O:")

    def test_no_file_knows_where_it_was_built(self):
        for package in (self.command, self.editor):
            with tempfile.TemporaryDirectory() as folder:
                run("dpkg-deb", "--raw-extract", package, folder)
                for path in Path(folder).rglob("*"):
                    if path.is_file():
                        self.assertNotIn(str(ROOT).encode(), path.read_bytes(), path)


class SourceArchive(unittest.TestCase):
    def test_holds_the_committed_files_of_root_in_one_folder(self):
        names = run("git", "ls-tree", "-r", "-z", "--name-only", "HEAD", cwd=ROOT).stdout
        with tarfile.open(PACKAGES / f"{NAME}.tar.gz") as archive:
            members = archive.getmembers()
        self.assertEqual(sorted(member.name for member in members if not member.isdir()),
                         sorted(f"{NAME}/{name}" for name in names.split("\0") if name))
        self.assertEqual({(member.uid, member.gid) for member in members}, {(0, 0)})


class NodePackage(unittest.TestCase):
    def setUp(self):
        if not shutil.which("npm"):
            self.skipTest("npm is not installed")

    def test_holds_the_library_its_types_and_what_belongs_to_it(self):
        with tarfile.open(the_only("zevmenu-runtime-*.tgz")) as archive:
            files = {member.name: archive.extractfile(member).read() for member in archive}
        self.assertEqual(sorted(files), sorted(f"package/{name}" for name in (
            "LICENSE", "README.md", "package.json", "zevmenu.d.ts", "zevmenu_dom.js",
            "zevmenu_loader.js", "zevmenu_ns4.js")))
        for name in ("zevmenu_dom.js", "zevmenu_loader.js", "zevmenu_ns4.js"):
            self.assertEqual(files[f"package/{name}"],
                             (PACKAGES / "build/bin" / name).read_bytes())
        package = json.loads(files["package/package.json"])
        self.assertEqual((package["version"], package["license"]), (VERSION, "MIT"))

    def test_installs_into_a_site(self):
        with tempfile.TemporaryDirectory() as site:
            (Path(site) / "package.json").write_text('{"private": true}')
            run("npm", "install", "--offline", "--no-audit", "--no-fund",
                the_only("zevmenu-runtime-*.tgz"), cwd=site)
            found = run("node", "-p", "require.resolve('zevmenu-runtime/zevmenu_loader.js')",
                        cwd=site).stdout.strip()
            self.assertEqual(Path(found).read_bytes(),
                             (PACKAGES / "build/bin/zevmenu_loader.js").read_bytes())


class SecondBuild(unittest.TestCase):
    """From the source archive, without git, in another folder, as another person would."""

    def test_has_the_same_bytes(self):
        if (ROOT / ".git").exists() and run("git", "status", "--porcelain", cwd=ROOT).stdout:
            self.skipTest("not everything is committed, and the archive is that of the commit")
        folder = Path(tempfile.mkdtemp(prefix="zev second build "))
        self.addCleanup(shutil.rmtree, folder)
        with tarfile.open(PACKAGES / f"{NAME}.tar.gz") as archive:
            archive.extractall(folder)
        settings = {name: value for name, value in os.environ.items()
                    if name not in ("SOURCE_DATE_EPOCH", "LC_ALL")}
        settings |= {"TZ": "Asia/Tokyo", "LANG": "de_DE.UTF-8", "CCACHE_DISABLE": "1"}
        result = subprocess.run(["sh", "-c", "umask 077 && exec scripts/package"], cwd=folder / NAME,
                                env=settings, capture_output=True, text=True)
        self.assertEqual(result.returncode, 0, result.stdout[-3000:] + result.stderr[-3000:])
        second = folder / NAME / "build/package"
        names = sorted(path.name for path in PACKAGES.iterdir()
                       if path.is_file() and path.suffix != ".gz")
        self.assertGreaterEqual(len(names), 2)
        for name in names:
            self.assertEqual((second / name).read_bytes(), (PACKAGES / name).read_bytes(), name)


if __name__ == "__main__":
    unittest.main(verbosity=2)
