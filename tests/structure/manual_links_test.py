#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that every link of the manual leads somewhere, and that each of its pages can be reached.

usage: manual_links_test.py HELP_FOLDER
"""

import sys
import unittest
from html.parser import HTMLParser
from pathlib import Path

FOLDER = Path(sys.argv.pop())


class Page(HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.links = []
        self.ids = set()
        self.scripts = 0
        self.feed(path.read_text("utf-8"))

    def handle_starttag(self, tag, attrs):
        attributes = dict(attrs)
        self.links += [value for name, value in attrs if name in ("href", "src")]
        self.scripts += tag == "script"
        if "id" in attributes:
            self.ids.add(attributes["id"])


PAGES = {path.name: Page(path) for path in FOLDER.glob("*.html")}


class Manual(unittest.TestCase):
    def test_every_link_leads_to_a_place_in_the_manual(self):
        for name, page in PAGES.items():
            for link in page.links:
                target, _, place = link.partition("#")
                with self.subTest(page=name, link=link):
                    self.assertTrue((FOLDER / (target or name)).is_file())
                    if place:
                        self.assertIn(place, PAGES[target or name].ids)

    def test_every_page_is_reached_from_the_first(self):
        reached, waiting = set(), ["index.html"]
        while waiting:
            name = waiting.pop()
            if name not in reached:
                reached.add(name)
                waiting += [target for link in PAGES[name].links
                            if (target := link.partition("#")[0]) in PAGES]
        self.assertEqual(reached, set(PAGES))

    def test_no_page_needs_scripts(self):
        self.assertEqual({name: page.scripts for name, page in PAGES.items()},
                         dict.fromkeys(PAGES, 0))


if __name__ == "__main__":
    unittest.main()
