#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The desktop knows the editor, its icon, and its documents.

usage: desktop_test.py SOURCE BUILD
"""

import configparser
import os
import shutil
import struct
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from support import environment, listed_files, next_argument, run

SOURCE = next_argument()
BUILD = next_argument()
ID = "example.zevmenu.Creator"
DESKTOP = SOURCE / f"packaging/desktop/{ID}.desktop"
METAINFO = BUILD / f"packaging/{ID}.metainfo.xml"
TYPES = SOURCE / "packaging/desktop/zevmenu-creator.xml"
DEFINITION = "application/x-zevmenu-definition"
SCRIPT = {"application/javascript", "text/javascript"}


def program(name):
    found = shutil.which(name)
    if not found:
        raise unittest.SkipTest(f"{name} is not installed")
    return found


class Entry(unittest.TestCase):
    def test_the_entry_is_valid(self):
        result = run(program("desktop-file-validate"), DESKTOP)
        self.assertEqual(result.stdout + result.stderr, "")

    def test_the_metainfo_is_valid(self):
        result = run(program("appstreamcli"), "validate", "--no-net", METAINFO)
        self.assertNotRegex(result.stdout, r"(?m)^\s*[WE]:")

    def test_entry_metainfo_and_icon_go_together(self):
        entry = configparser.ConfigParser(interpolation=None)
        entry.optionxform = str
        entry.read(DESKTOP, "utf-8")
        entry = entry["Desktop Entry"]
        metainfo = ElementTree.parse(METAINFO).getroot()
        self.assertEqual(metainfo.findtext("id"), ID)
        self.assertEqual(metainfo.findtext("launchable"), DESKTOP.name)
        self.assertEqual(entry["Icon"], ID)
        self.assertEqual(entry["MimeType"], DEFINITION + ";")
        self.assertEqual(metainfo.findtext("provides/mediatype"), DEFINITION)
        self.assertEqual(entry["StartupNotify"], "true")
        self.assertTrue(entry["Keywords"])
        names = {path.rsplit("/", 1)[1] for path in listed_files(BUILD)["editor"]}
        self.assertLessEqual({ID + ".desktop", ID + ".metainfo.xml", ID + ".svg", ID + ".png",
                              entry["Exec"].split()[0]}, names)

    def test_icons_are_as_large_as_their_folders_say(self):
        sizes = []
        for path in listed_files(BUILD)["editor"]:
            if path.endswith(".png") and "/hicolor/" in path:
                size = int(path.split("/")[3].split("x")[0])
                head = (BUILD / f"packaging/icons/{size}.png").read_bytes()[:24]
                self.assertEqual(head[:8], b"\x89PNG\r\n\x1a\n")
                self.assertEqual(struct.unpack(">II", head[16:]), (size, size))
                sizes.append(size)
        self.assertEqual(sorted(sizes), [16, 22, 24, 32, 48, 64, 128, 256])


class Types(unittest.TestCase):
    """A desktop of its own, with the system's types and ours, and files to ask about."""

    @classmethod
    def setUpClass(cls):
        program("update-mime-database")
        cls.folder = Path(tempfile.mkdtemp(prefix="zev-types-"))
        system = "/usr/share/mime/packages/freedesktop.org.xml"
        for share, sources in (("share", [system, TYPES]), ("without", [system]), ("own", [TYPES])):
            packages = cls.folder / share / "mime/packages"
            packages.mkdir(parents=True)
            for source in sources:
                shutil.copy(source, packages)
            run("update-mime-database", cls.folder / share / "mime",
                env=os.environ | {"PKGSYSTEM_ENABLE_FSYNC": "0"})
        applications = cls.folder / "share/applications"
        applications.mkdir()
        shutil.copy(DESKTOP, applications)
        # An entry whose program is not there is not offered.
        tools = cls.folder / "bin"
        tools.mkdir()
        (tools / "zevmenu-creator").symlink_to("/bin/true")
        (applications / "notes.desktop").write_text(
            "[Desktop Entry]\nType=Application\nName=Notes\nExec=true %f\n"
            "MimeType=application/javascript;text/javascript;\n")
        if shutil.which("update-desktop-database"):
            run("update-desktop-database", applications)
        cls.environment = environment(
            HOME=cls.folder, XDG_DATA_HOME=cls.folder / "home", XDG_DATA_DIRS=cls.folder / "share",
            PATH=f"{tools}:{os.environ['PATH']}")
        definition = (SOURCE / "samples/site_bar.js").read_bytes()
        assert definition.startswith(b"zev_state.")
        cls.files = {"definition.js": definition, "marked.js": b"\xef\xbb\xbf" + definition,
                     "plain.js": b"var answer = 42;\n", "empty.js": b""}
        for name in ("zevmenu_loader.js", "zevmenu_dom.js", "zevmenu_ns4.js"):
            cls.files[name] = (BUILD / "bin" / name).read_bytes()
        for name, content in cls.files.items():
            (cls.folder / name).write_bytes(content)

    @classmethod
    def tearDownClass(cls):
        shutil.rmtree(cls.folder)

    def check(self, types_in):
        """`types_in` gives the types of the files, in their order, in an environment.

        Installed beside the system's types, or below another prefix that is looked at first.
        """
        def types_with(*shares):
            folders = ":".join(str(self.folder / share) for share in shares)
            found = types_in(self.environment | {"XDG_DATA_DIRS": folders})
            return dict(zip(self.files, found, strict=True))

        without = types_with("without")
        self.assertIn(without["plain.js"], SCRIPT)
        definitions = dict.fromkeys(("definition.js", "marked.js"), DEFINITION)
        for shares in (["share"], ["own", "without"]):
            with self.subTest(shares=shares):
                self.assertEqual(types_with(*shares), without | definitions)

    def test_gio_tells_definitions_from_scripts(self):
        gio = program("gio")

        def types_in(environment):
            for name in self.files:
                info = run(gio, "info", "-a", "standard::content-type", self.folder / name,
                           env=environment).stdout
                yield info.split("standard::content-type:")[1].split()[0]
        self.check(types_in)

    def test_qt_tells_definitions_from_scripts(self):
        paths = [self.folder / name for name in self.files]
        self.check(lambda environment: run(BUILD / "tests/packaging/type_of_file", *paths,
                                           env=environment).stdout.splitlines())

    def test_the_editor_is_the_default_for_definitions_only(self):
        gio = program("gio")
        program("update-desktop-database")
        for mime_type, expected in [(DEFINITION, ID + ".desktop"),
                                    ("application/javascript", "notes.desktop")]:
            answer = run(gio, "mime", mime_type, env=self.environment | {"LANG": "C.UTF-8"}).stdout
            self.assertIn(expected, answer.splitlines()[0], answer)


if __name__ == "__main__":
    unittest.main()
