"""Shows the program's main job on a private desktop: over a real editor a real hot key opens the palette, a few
letters find a command, Return runs it, and the editor's own text and the file that it saves prove it.

usage: demonstration.py PROGRAM DIRECTORY     pictures of each stage go to DIRECTORY"""

import subprocess
import sys
import time
from pathlib import Path

from harness import Desktop, Program
from harness.keyboard import Keyboard
from harness.menu_witness import menu_entry
from harness.resident import HOT_KEY, Resident
from harness.settings_window import SettingsWindow
from harness.waiting import wait_until

TEXT = "The quick brown fox\njumps over the lazy dog.\n"
CAPITALS = TEXT.upper()
WINDOW = (160, 90, 960, 600)
SHOWN_ROWS = 4


class Demonstration:
    def __init__(self, desktop, program, directory, suffix):
        self._desktop = desktop
        self._directory = directory
        self._suffix = suffix
        self._program = program
        self._tovrel = Program(desktop.environment, program)
        self._keyboard = Keyboard(desktop.environment)
        self._note = desktop.home / "note.txt"
        self._editor = None
        self._resident = None

    def open_editor(self, scale):
        self._note.write_text(TEXT, encoding="utf-8")
        begun = time.monotonic()
        self._editor = self._desktop.launch(["mousepad", str(self._note)])
        self._desktop.windows.place(self._editor.window, *(scale * number for number in WINDOW))
        self._editor.bring_to_front()
        say(f"The editor Mousepad (process {self._editor.pid}, {since(begun)}) is in front and shows the file "
            f"{self._note.name}:")
        show(self._editor.text() or "(no text)")

    def start_palette(self, scale):
        begun = time.monotonic()
        self._resident = Resident(self._desktop, self._desktop.home, {"QT_SCALE_FACTOR": str(scale)},
                                  self._program)
        say(f"$ tovrel &    # resident after {since(begun)}, as process {self._resident.pid}")

    def run(self, letters, title, picture):
        """Opens the palette, types, checks that the command is the first, and presses Return."""
        begun = time.monotonic()
        self._keyboard.chord(*HOT_KEY).type(letters).send()
        wait_until(lambda: self._resident.query() == letters, "the letters in the search field")
        say(f"Pressed Ctrl+Shift+P and typed \"{letters}\" (there after {since(begun)}); the palette lists:")
        wait_until(self._resident.has_focus, "the palette in front")
        rows = self._resident.rows()
        show("\n".join(rows[:SHOWN_ROWS]))
        if not rows or not rows[0].startswith(title):
            raise AssertionError(f"{title!r} is not the first row")
        self.picture(picture)
        self._keyboard.chord("Return").send()
        wait_until(lambda: not self._resident.is_open(), "the palette to close")
        say(f"Pressed Return: {title}")

    def open_and_close(self, picture):
        self._keyboard.chord(*HOT_KEY).send()
        wait_until(self._resident.has_focus, "the palette in front")
        self.picture(picture)
        self._keyboard.chord("Escape").send()
        wait_until(lambda: not self._resident.is_open(), "the palette to close")
        wait_until(lambda: self._desktop.windows.active() == self._editor.window, "the editor in front")

    def wait_for_selection(self):
        wait_until(lambda: "sensitive" in menu_entry(self._editor.tree, "Edit", "Copy").states, "a selection")

    def prove_capitals_in_the_editor(self):
        wait_until(lambda: self._editor.text() == CAPITALS, "the editor to show the text in capitals")
        say("Proved: the editor's text, asked for by another program over the accessibility bus, is now:")
        show(CAPITALS)
        if self._note.read_text(encoding="utf-8") != TEXT:
            raise AssertionError(f"{self._note.name} changed before it was saved")

    def prove_the_history(self):
        history = self._tovrel.expect("preferences", "read", "Tovrel.commandHistory").json
        used = sorted(identifier for identifier, entry in history.items() if entry["usageCount"] == 1)
        expected = ["menu:org.xfce.mousepad:Edit/Convert/To Uppercase", "menu:org.xfce.mousepad:Edit/Select All"]
        if used != expected:
            raise AssertionError(f"the history holds {used}")
        say("Proved: the history remembers both commands, so that they rank higher the next time.")

    def hide_a_menu_item(self):
        settings = SettingsWindow(self._desktop, self._resident, self._keyboard)
        settings.open(self._tovrel)
        for tab in ("Apps", "Commands", "History", "General", "Menu Filter"):
            settings.select_tab(tab)
            self.picture(f"5-settings-{tab.lower().replace(' ', '-')}")
        settings.pick("Menu Item", "to uppercase", "Edit > Convert > To Uppercase")
        settings.activate("Hide Selected Item")
        settings.wait_for("Edit > Convert > To Uppercase", "list item")
        self.picture("6-hidden")
        say("$ tovrel settings    # with keys alone: Menu Filter, To Uppercase, Hide Selected Item")
        settings.close()
        wait_until(lambda: self._desktop.windows.active() == self._editor.window, "the editor in front")
        self._keyboard.chord(*HOT_KEY).type("uppercase").send()
        wait_until(lambda: self._resident.query() == "uppercase", "the letters in the search field")
        if any("To Uppercase" in row for row in self._resident.rows()):
            raise AssertionError("the hidden item is still listed")
        self._keyboard.chord("Escape").send()
        wait_until(lambda: not self._resident.is_open(), "the palette to close")
        say("Proved: the palette lists it no more; in the editor's own menu it still is.")

    def quit(self):
        self._tovrel.expect("quit")
        if self._resident.process.wait(timeout=20) != 0 or self._resident.errors:
            raise AssertionError(f"the program ended badly: {self._resident.errors}")
        say("$ tovrel quit")

    def picture(self, name):
        self._desktop.take_picture(self._directory / f"{name}{self._suffix}.png")


def since(begun):
    return f"{(time.monotonic() - begun) * 1000:.0f} ms"


def say(text):
    print(f"\n{text}", flush=True)


def show(text):
    print("\n".join(f"    {line}" for line in text.splitlines()), flush=True)


def run(program, directory):
    for scale in (1, 2):
        begun = time.monotonic()
        with Desktop(size=(1280 * scale, 800 * scale)) as desktop:
            say(f"A private desktop is up after {since(begun)}: display {desktop.environment['DISPLAY']}, "
                f"{1280 * scale} x {800 * scale} pixels at scale {scale}, with a session bus, an accessibility bus "
                "and a home directory of its own.")
            demonstration = Demonstration(desktop, program, directory, f"-at-scale-{scale}")
            demonstration.open_editor(scale)
            demonstration.start_palette(scale)
            demonstration.open_and_close("1-palette")
            demonstration.run("select all", "Select All", "2-typed")
            demonstration.wait_for_selection()
            demonstration.run("upper", "To Uppercase", "3-selected")
            demonstration.prove_capitals_in_the_editor()
            demonstration.picture("4-done")
            demonstration.prove_the_history()
            demonstration.hide_a_menu_item()
            demonstration.quit()
    say(f"Pictures of each stage: {directory}")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    try:
        run(Path(sys.argv[1]), Path(sys.argv[2]))
    except (AssertionError, OSError, RuntimeError, subprocess.SubprocessError) as failure:
        sys.exit(f"\nNOT proved: {failure}")
