#!/usr/bin/env python3
"""Writes docs/toolkits.md from the findings of a run of the matrix of toolkits.

usage: report.py DIRECTORY > docs/toolkits.md     DIRECTORY is what TOVREL_TOOLKIT_REPORT named"""

import json
import sys
from pathlib import Path

INTRODUCTION = """# Toolkits

Which parts of the menus of applications can be read and pressed, toolkit by toolkit. A program writes this page
from a run of the tests on Debian 12 with X11:

    scripts/test --all
    TOVREL_TOOLKIT_REPORT="$PWD/build/toolkits" ctest --preset release -C heavy -L toolkit
    tests/desktop/toolkits/report.py build/toolkits > docs/toolkits.md

The same checks run over every application; `tests/desktop/toolkits` holds them and a description of each application.
"""
CHECKS = {
    "menus": ("Menus", "every menu of the bar is found, with items in it"),
    "search": ("Search", "known commands are found first, with their shortcuts"),
    "check_mark": ("Check mark", "it follows the application when the command is pressed once, and once more"),
    "choice": ("Choice", "the chosen one of several commands is marked"),
    "disabled": ("Disabled", "a command is disabled and enabled with the state of the document"),
    "press": ("Press", "pressing a command has the effect that the menu has in the application"),
    "dialog": ("Dialog", "it opens by a command and closes by Escape, and the application goes on"),
    "stale": ("Stale", "a command that has been disabled or renamed since it was read is refused, and nothing happens"),
    "killed": ("Killed",
               "a command of an application killed since then fails with one line that says so, exit status 1"),
}


def main(directory):
    found = [json.loads(file.read_text(encoding="utf-8")) for file in sorted(Path(directory).glob("*.json"))]
    if not found:
        sys.exit(f"there are no results in {directory}")
    found.sort(key=lambda one: (one["toolkit"], one["name"]))
    print(INTRODUCTION)
    print("\n".join(f"- {title}: {meaning}." for title, meaning in CHECKS.values()))
    print("\n**yes** holds; **no** failed in this run; **partly** holds, with something missing that is named below; "
          "**–** was not tried, because no command has an effect that can be seen.\n")
    print_table(["Application", "Toolkit", *(title for title, _ in CHECKS.values())],
                [[one["name"], one["toolkit"], *(verdict(one, check) for check in CHECKS)] for one in found])
    start = min(one["measured"].get("start_ms", 0) for one in found)
    print(f"\n`tovrel menus` is timed from the start of the process to its end, the median of several runs; "
          f"{start} ms of it is the start of the program alone (`tovrel --version`).\n")
    print_table(["Application", "Packages", "Menu items", "`tovrel menus`"],
                [[one["name"], ", ".join(f"{name} {version}" for name, version in one["versions"].items()),
                  one["measured"].get("items", "–"), f"{one['measured'].get('menus_ms', '–')} ms"]
                 for one in found])
    for one in found:
        print(f"\n## {one['name']} ({one['toolkit']})\n\n{one['notes']}")
        if one["missing"]:
            print()
        for check, reason in one["missing"].items():
            print(f"- {CHECKS[check][0]}: {reason}")


def verdict(one, check):
    if check not in one["checks"]:
        return "–"
    if not one["checks"][check]:
        return "no"
    return "partly" if check in one["missing"] else "yes"


def print_table(head, rows):
    for row in (head, ["---"] * len(head), *rows):
        print(f"| {' | '.join(map(str, row))} |")


if __name__ == "__main__":
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    main(sys.argv[1])
