"""Preferences that another program holds, that cannot be used or that a later version wrote: the hot key works,
every key arrives, and a change that could not be stored is reported."""

import contextlib
import fcntl
import os
import sqlite3
from pathlib import Path

from harness.keyboard import Keyboard
from harness.palette_testing import HOT_KEY, PaletteTestCase, main
from harness.settings_window import SettingsWindow

TEXT = "the quick brown fox\n"
SHORTCUT_KEY = "KeyboardShortcuts_togglePalette"
CUSTOM = {"id": "ZEBRA", "title": "Zebra", "kind": "open", "payload": "/nowhere", "aliases": [], "isEnabled": True}
TOGGLE = "Show checked status of menu items"
NOT_STORED = "The last change was not stored"


@contextlib.contextmanager
def locked_database(file):
    database = sqlite3.connect(file, isolation_level=None)
    try:
        database.execute("BEGIN EXCLUSIVE")
        yield
    finally:
        database.close()


@contextlib.contextmanager
def locked_folder(file):
    folder = os.open(file.parent, os.O_RDONLY)
    try:
        fcntl.flock(folder, fcntl.LOCK_EX)
        yield
    finally:
        os.close(folder)


class PreferencesTroubleTests(PaletteTestCase):
    def setUp(self):
        super().setUp()
        self.editor, _ = self.open_text("mousepad", TEXT)
        self.file = Path(self.desktop.environment["TOVREL_PREFERENCES"])

    def settings(self):
        return SettingsWindow(self.desktop, self.resident, self.keyboard)

    def press_and_type(self, text):
        """Presses the hot key and types the text, in one instant."""
        self.keyboard.chord(*HOT_KEY).type(text).send()
        self.wait_until(lambda: self.resident.query() == text, f"{text!r} in the search field")

    def dismiss(self):
        self.press("Escape")
        self.wait_until_closed()

    def unstored_change(self):
        return self.resident.status()["unstoredChange"]

    def test_while_another_program_holds_them(self):
        self.store("customCommands", [CUSTOM])
        for lock in (locked_database, locked_folder):
            with self.subTest(lock=lock.__name__):
                self.editor.bring_to_front()
                self.start_resident()
                self.press_and_type("zebra")
                self.dismiss()
                counted = self.history()
                settings = self.settings()
                with lock(self.file):
                    self.press_and_type("zebra")
                    self.assertIn("Zebra", self.resident.rows()[0])
                    self.press("Return")
                    self.wait_until_closed()
                    self.assertIn("locked", self.unstored_change())
                    settings.open(self.tovrel)
                    settings.activate(TOGGLE, "check box")
                    settings.wait_for(NOT_STORED, "alert message")
                self.assertEqual(self.history(), counted)
                settings.activate(TOGGLE, "check box")
                settings.wait_until_gone(NOT_STORED, "alert message")
                self.assertIsNone(self.unstored_change())
                settings.close()
                self.wait_until_in_front(self.editor)
                self.press_and_type("zebra")
                self.press("Return")
                self.wait_until(lambda: self.history() != counted, "the use to be counted")
                self.assertEqual(self.resident.end(), 0)

    def test_a_start_while_another_program_holds_them(self):
        self.tovrel.expect("preferences", "write", SHORTCUT_KEY, "--string",
                           '{"carbonKeyCode":40,"carbonModifiers":2304}')
        with locked_database(self.file):
            self.start_resident()
            self.press_and_type("select all")
            self.dismiss()
        self.wait_until(lambda: self.resident.status()["shortcut"] == "Ctrl+Alt+K", "the user's own hot key")
        self.press("ctrl", "alt", "k")
        self.wait_until(self.resident.has_focus, "the palette to open by it")

    def test_a_first_start_with_a_folder_in_their_place(self):
        self.file.mkdir()
        self.start_resident()
        self.press_and_type("select all")
        self.dismiss()
        self.file.rmdir()
        self.wait_until(lambda: self.tovrel.run("preferences", "read", SHORTCUT_KEY).status == 0,
                        "the default hot key to be stored")
        self.press_and_type("select all")

    def test_of_a_later_version_they_are_left_alone(self):
        self.tovrel.expect("preferences", "write", "greeting", "--bool", "true")
        with contextlib.closing(sqlite3.connect(self.file)) as database:
            database.execute("PRAGMA user_version = 2")
        before = self.file.read_bytes()
        self.start_resident()
        settings = self.settings()
        settings.open(self.tovrel)
        settings.select_tab("Apps")
        settings.segment("Current Application", 1)
        settings.wait_for(NOT_STORED, "alert message")
        self.assertIn("later version", self.unstored_change())
        self.assertIn("later version", self.tovrel.expect("status").output)
        settings.select_tab("General")
        settings.wait_for(NOT_STORED, "alert message")
        settings.focus("Command Palette", "text")
        self.press("ctrl", "alt", "k")
        settings.close()
        self.assertEqual(self.resident.status()["shortcut"], "Ctrl+Shift+P")
        self.assertEqual(self.file.read_bytes(), before)
        self.wait_until_in_front(self.editor)
        self.press_and_type("select all")

    def test_where_nothing_can_be_printed(self):
        other = Keyboard(self.desktop.environment)
        self.addCleanup(other.close)
        self.assertTrue(other.take_hot_key("p"))
        self.file.mkdir()
        # Both the taken hot key and the unusable preferences would be reported.
        self.start_resident(prints_to="/dev/full")
        self.tovrel.expect("toggle")
        self.wait_until(self.resident.has_focus, "the palette to open")
        self.assertEqual(self.resident.end(), 0)


if __name__ == "__main__":
    main()
