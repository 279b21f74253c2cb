#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks that every command has a manual page that names exactly the options of its --help.

The editor's page names those of the editor's --help.

usage: manual_pages_test.py PROGRAM FOLDER [EDITOR]
"""

import re
import subprocess
import sys
from pathlib import Path


def help_of(program, *command):
    return subprocess.run([program, *command, "--help"], check=True, capture_output=True,
                          text=True).stdout


def commands_in(help_text):
    """Names listed under "Subcommands:"."""
    listed = help_text.split("Subcommands:\n")[1].split("\n\n")[0]
    return re.findall(r"^  (\S+)", listed, re.MULTILINE)


def options_in(help_text):
    """Every spelling of every option listed under "Options:", and the name of its argument."""
    listed = help_text.split("Options:\n")[1].split("\n\n")[0]
    return {(option, argument)
            for spellings, argument in re.findall(r"^  (-\S+)(?: (?!Needs:|Excludes:)([A-Z]\S*))?(?= |$)", listed,
                                                  re.MULTILINE)
            for option in spellings.split(",")}


def arguments_in(help_text):
    if "Positionals:\n" not in help_text:
        return set()
    listed = help_text.split("Positionals:\n")[1].split("\n\n")[0]
    return set(re.findall(r"^  (\S+)", listed, re.MULTILINE))


def options_on(page):
    """The options that head a paragraph: lines of the form ".It Fl o Ar OUT , Fl -output Ar OUT"."""
    options = set()
    for line in re.findall(r"^\.It (Fl .*)$", page, re.MULTILINE):
        for name, argument in re.findall(r"Fl (\S+)(?: Ar (\S+(?: , Ns Ar \S+)*))?", line):
            options.add(("-" + name, argument.replace(" , Ns Ar ", ",")))
    return options


def check(program, folder, names):
    problems = []
    text = help_of(program, *names)
    path = folder / ("-".join(["zevmenu", *names]) + ".1")
    if not path.exists():
        return [f"{path.name} is missing"]
    page = path.read_text("utf-8")
    title = f".Dt {path.stem.upper()} 1"
    if title not in page.splitlines():
        problems.append(f"{path.name}: no line '{title}'")
    if options_on(page) != options_in(text):
        problems.append(f"{path.name}: has the options {sorted(options_on(page))}, "
                        f"--help has {sorted(options_in(text))}")
    for argument in arguments_in(text):
        if not re.search(rf"\bAr {argument}\b", page):
            problems.append(f"{path.name}: does not mention {argument}")
    for command in commands_in(text) if not names else []:
        if f".Xr zevmenu-{command} 1" not in page:
            problems.append(f"{path.name}: does not refer to zevmenu-{command}(1)")
    return problems


def editor_options(editor):
    """As `options_in`, of the form "  -h, --help   text" and "  --screenshot <picture>   text"."""
    text = subprocess.run([editor, "--help"], check=True, capture_output=True, text=True).stdout
    listed = text.split("Options:\n")[1].split("\n\n")[0]
    return {(option, argument.upper())
            for spellings, argument in re.findall(r"^  (-[\w-]+(?:, -[\w-]+)*)(?: <(\S+)>)?(?=  )", listed,
                                                  re.MULTILINE)
            for option in spellings.split(", ")}


def check_editor(editor, folder):
    page = (folder / "zevmenu-creator.1").read_text("utf-8")
    if options_on(page) == editor_options(editor):
        return []
    return [f"zevmenu-creator.1: has the options {sorted(options_on(page))}, "
            f"--help has {sorted(editor_options(editor))}"]


def main():
    program, folder = sys.argv[1], Path(sys.argv[2])
    commands = commands_in(help_of(program))
    problems = check(program, folder, [])
    for command in commands:
        problems += check(program, folder, [command])
    if len(sys.argv) > 3:
        problems += check_editor(sys.argv[3], folder)
    expected = {"zevmenu.1"} | {f"zevmenu-{command}.1" for command in commands}
    for page in folder.glob("zevmenu*.1"):
        # The editor's page is no command's.
        if page.name not in expected | {"zevmenu-creator.1"}:
            problems.append(f"{page.name}: no such command")
    for problem in problems:
        print(problem)
    print(f"{len(commands)} commands, {len(problems)} problems")
    return 1 if problems or not commands else 0


if __name__ == "__main__":
    sys.exit(main())
