#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Shells complete every command and option that the programs name in their help.

usage: completion_test.py SOURCE BUILD

bash and fish are asked. What zsh is told is read, and zsh looks whether it understands it.
"""

import re
import shutil
import tempfile
import unittest
from pathlib import Path

from support import listed_files, next_argument, run

SOURCE = next_argument()
BUILD = next_argument()
BIN = BUILD / "bin"
MADE = BUILD / "packaging/completion"
WRITTEN = SOURCE / "packaging/completion"
EDITOR = "zevmenu-creator"

ASK_BASH = r"""
source "$1"; shift
COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); COMP_TYPE=9
asked=()
compopt() { asked+=("$*"); }
$(complete -p "$1" | sed 's/.*-F \([^ ]*\).*/\1/') "$1" "${COMP_WORDS[-1]}" "${COMP_WORDS[-2]}"
printf '%s\n' "${COMPREPLY[@]}" "${asked[@]/#/compopt }"
"""


def shell(name):
    found = shutil.which(name)
    if not found:
        raise unittest.SkipTest(f"{name} is not installed")
    return found


def help_of(*command):
    return run(BIN / command[0], *command[1:], "--help").stdout


def part_of(text, title):
    return text.split(f"{title}:\n")[1].split("\n\n")[0]


def commands():
    return re.findall(r"^  (\S+)", part_of(help_of("zevmenu"), "Subcommands"), re.MULTILINE)


def options_of(*command):
    """The long options that a program, or a command of it, names."""
    return sorted(set(re.findall(r"(?:^  |, ?)(?:-\w, ?)?(--[a-z-]+)",
                                 part_of(help_of(*command), "Options"), re.MULTILINE)))


class Completion:
    """What each shell is asked; `ask(words)` gives what it offers for the last of the words."""

    def test_every_command(self):
        self.assertEqual(sorted(self.ask("zevmenu", "")), sorted(commands()))
        self.assertEqual(self.ask("zevmenu", "li"), ["linkcode"])

    def test_every_option_of_the_program(self):
        self.assertEqual(sorted(self.ask("zevmenu", "--")), options_of("zevmenu"))

    def test_every_option_of_every_command(self):
        names = commands()
        self.assertIn("integrate", names)
        for name in names:
            with self.subTest(command=name):
                self.assertEqual(sorted(self.ask("zevmenu", name, "--")),
                                 options_of("zevmenu", name))

    def test_what_stands_behind_options(self):
        formats = re.search(r"--format FORMAT.*?: ?(.*?)\n  -", help_of("zevmenu", "import"),
                            re.DOTALL).group(1)
        self.assertEqual(sorted(self.ask("zevmenu", "import", "--format", "")),
                         sorted(re.findall(r"\b[a-z]{3,}\b", formats)))
        self.assertEqual(sorted(self.ask("zevmenu", "help", "")), sorted(commands()))

    def test_every_option_of_the_editor(self):
        if EDITOR not in {path.rsplit("/", 1)[-1] for path in listed_files(BUILD).get("editor", [])}:
            self.skipTest("the editor is not built")
        self.assertEqual(sorted(self.ask(EDITOR, "--")), options_of(EDITOR))


class Bash(Completion, unittest.TestCase):
    def ask(self, *words):
        file = MADE / "bash" if words[0] == "zevmenu" else WRITTEN / f"{EDITOR}.bash"
        return run(shell("bash"), "-c", ASK_BASH, "ask", file, *words).stdout.split("\n")[:-1]

    def test_files_and_folders(self):
        self.assertEqual(self.ask("zevmenu", "format", "-o", ""), ["compopt -o default"])
        self.assertEqual(self.ask("zevmenu", "format", ""), ["compopt -o default"])
        self.assertEqual(self.ask("zevmenu", "rebase", "--from", ""), ["compopt -o dirnames"])


class Fish(Completion, unittest.TestCase):
    def ask(self, *words):
        line = " ".join(words)
        folder = MADE if words[0] == "zevmenu" else WRITTEN
        file = folder / ("fish" if words[0] == "zevmenu" else f"{EDITOR}.fish")
        with tempfile.TemporaryDirectory() as home:
            answer = run(shell("fish"), "--no-config", "-c",
                         'source $argv[1]; complete --do-complete $argv[2]', file, line,
                         cwd=home, env={"HOME": home, "PATH": f"{BIN}:/usr/bin:/bin"}).stdout
        return [offer.split("\t")[0] for offer in answer.splitlines()]


class Zsh(unittest.TestCase):
    def cases(self):
        """{command: what stands in its part}; the program's own is nameless."""
        text = (MADE / "zsh").read_text("utf-8")
        parts = re.findall(r"^        (\S+)\)\n(.*?) ;;$", text, re.MULTILINE | re.DOTALL)
        return {"" if name == "*zevmenu" else name: part for name, part in parts}

    def test_every_command_and_option(self):
        cases = self.cases()
        self.assertEqual(sorted(cases), sorted(["", *commands()]))
        for name, part in cases.items():
            with self.subTest(command=name):
                self.assertEqual(sorted(set(re.findall(r"(--[a-z-]+)['\[}]", part))),
                                 options_of("zevmenu", *([name] if name else [])))

    def test_every_option_of_the_editor(self):
        if "editor" not in listed_files(BUILD):
            self.skipTest("the editor is not built")
        text = (WRITTEN / f"{EDITOR}.zsh").read_text("utf-8")
        self.assertEqual(sorted(set(re.findall(r"(--[a-z-]+)['\[}]", text))), options_of(EDITOR))

    def test_zsh_understands_it(self):
        for file in (MADE / "zsh", WRITTEN / f"{EDITOR}.zsh"):
            run(shell("zsh"), "--no-exec", file)


if __name__ == "__main__":
    unittest.main()
