"""Shows the program's main job on a private desktop: it lists a real editor's menus, finds commands by a few
letters, presses them, and proves by the editor's own text and by the file it saves that they were performed.

usage: demonstration.py PROGRAM DIRECTORY     pictures of the desktop before and after go to DIRECTORY"""

import subprocess
import sys
import time
from pathlib import Path

from harness import Desktop, Program
from harness.waiting import wait_until

TEXT = "The quick brown fox\njumps over the lazy dog.\n"
CAPITALS = TEXT.upper()
SHOWN_MENU_LINES = 14
WINDOW = (160, 90, 960, 600)


class Demonstration:
    def __init__(self, desktop, program):
        self._desktop = desktop
        self._tovrel = Program(desktop.environment, program)
        self._note = desktop.home / "note.txt"
        self._editor = None

    def open_editor(self):
        self._note.write_text(TEXT, encoding="utf-8")
        begun = time.monotonic()
        self._editor = self._desktop.launch(["mousepad", str(self._note)])
        self._desktop.windows.place(self._editor.window, *WINDOW)
        self._editor.bring_to_front()
        say(f"The editor Mousepad (process {self._editor.pid}, {since(begun)}) is in front and shows the file "
            f"{self._note.name}:")
        show(self._editor.text() or "(no text)")

    def list_menus(self):
        lines = self._tovrel_says("menus").splitlines()
        show("\n".join(lines[:SHOWN_MENU_LINES]))
        show(f"… and {max(0, len(lines) - SHOWN_MENU_LINES)} lines more")

    def find_and_press(self, query):
        show(self._tovrel_says("search", "--ids", "--limit", "3", query))
        ranked = self._tovrel.expect("search", "--json", query).json[0]
        if not ranked:
            raise AssertionError(f"nothing was found for {query!r}")
        self._tovrel_says("press", ranked[0]["command"]["id"])

    def prove_capitals_in_the_editor(self):
        wait_until(lambda: self._editor.text() == CAPITALS, "the editor to show the text in capitals")
        say("Proved: the editor's text, asked for by another program over the accessibility bus, is now:")
        show(CAPITALS)
        if self._note.read_text(encoding="utf-8") != TEXT:
            raise AssertionError(f"{self._note.name} changed before it was saved")

    def prove_capitals_on_disk(self):
        wait_until(lambda: self._note.read_text(encoding="utf-8") == CAPITALS, "the file to be saved")
        say(f"Proved: the file {self._note.name} on disk holds the capitals too.")

    def _tovrel_says(self, *arguments):
        """Runs the program as a user would type it and returns its output."""
        begun = time.monotonic()
        answer = self._tovrel.expect(*arguments)
        typed = " ".join(f"'{argument}'" if " " in argument else argument for argument in arguments)
        say(f"$ tovrel {typed}    # {since(begun)}")
        return answer.output


def since(begun):
    return f"{(time.monotonic() - begun) * 1000:.0f} ms"


def say(text):
    print(f"\n{text}", flush=True)


def show(text):
    print("\n".join(f"    {line}" for line in text.splitlines()), flush=True)


def run(program, directory):
    begun = time.monotonic()
    with Desktop() as desktop:
        print(f"A private desktop is up after {since(begun)}: display {desktop.environment['DISPLAY']}, with a "
              "session bus, an accessibility bus and a home directory of its own.")
        demonstration = Demonstration(desktop, program)
        demonstration.open_editor()
        desktop.take_picture(directory / "before.png")
        demonstration.list_menus()
        demonstration.find_and_press("select all")
        demonstration.find_and_press("upper")
        demonstration.prove_capitals_in_the_editor()
        demonstration.find_and_press("save")
        demonstration.prove_capitals_on_disk()
        desktop.take_picture(directory / "after.png")
        say(f"Pictures: {directory / 'before.png'} and {directory / 'after.png'}")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    try:
        run(Path(sys.argv[1]), Path(sys.argv[2]))
    except (AssertionError, OSError, RuntimeError, subprocess.SubprocessError) as failure:
        sys.exit(f"\nNOT proved: {failure}")
