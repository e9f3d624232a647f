"""What the palette lists and runs: states of menu items, the user's own commands, applications that are left
alone, and the list without accessibility."""

import subprocess

from harness.keyboard import Keyboard
from harness.palette_testing import HOT_KEY, PaletteTestCase, main

TEXT = "the quick brown fox\n"


class CommandTests(PaletteTestCase):
    def test_menu_states_are_listed(self):
        self.open_text("featherpad", TEXT)
        self.start_resident()
        self.open_palette()
        self.type("wrap lines")
        self.assertEqual(self.resident.checked_rows()[0], self.resident.rows()[0])
        self.tovrel.expect("preferences", "write", "paletteSettings.showCheckedStatus", "--bool", "false")
        self.resident.end()
        self.start_resident()
        self.open_palette()
        self.type("wrap lines")
        self.assertIn("Wrap Lines", self.resident.rows()[0])
        self.assertEqual(self.resident.checked_rows(), [])

    def test_titles_are_ordered_for_people_whatever_the_locale(self):
        self.store("customCommands", [{"id": title, "title": title, "kind": "open", "payload": "x", "aliases": [],
                                       "isEnabled": True} for title in ("zoom", "Éclair", "Bold", "archive")])
        self.open_text("mousepad", TEXT)
        for locale in ({}, {"LC_ALL": "C.UTF-8"}, {"LC_ALL": "C"}):
            with self.subTest(locale=locale):
                self.start_resident(**locale)
                self.open_palette()
                self.wait_until(lambda: len(self.resident.rows()) >= 4, "the rows")
                for row, title in zip(self.resident.rows(), ("archive", "Bold", "Éclair", "zoom")):
                    self.assertTrue(row.startswith(title), row)
                self.resident.end()

    def test_the_users_own_commands_ask_first(self):
        ran = self.directory / "ran"
        self.store("customCommands", [{"id": "A1", "title": "Back Up", "kind": "shellScript",
                                       "payload": f"touch '{ran}'", "aliases": ["safe"], "isEnabled": True}])
        editor, _ = self.open_text("mousepad", TEXT)
        self.start_resident()
        for answer in ("Escape", "Return"):
            self.open_palette()
            self.type("safe")
            palette = self.resident.window
            self.press("Return")
            self.wait_until_asked(palette)
            self.assertFalse(ran.exists())
            self.press(answer)
            self.wait_until_closed()
            self.wait_until_in_front(editor)
            self.assertEqual(self.history(), {} if answer == "Escape" else {"custom:A1": 1})
        self.wait_until(ran.exists, "the command to have run")

    def test_without_accessibility_there_is_only_the_way_to_it(self):
        self.open_text("mousepad", TEXT)
        self.start_resident(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.desktop.switch_accessibility(False)
        self.addCleanup(self.desktop.switch_accessibility, True)
        self.open_palette()
        self.wait_until(lambda: len(self.resident.rows()) == 1, "one row")
        self.assertIn("Open Accessibility Settings", self.resident.rows()[0])
        palette = self.resident.window
        self.press("Return")
        self.wait_until_asked(palette)
        self.press("Return")
        self.wait_until(lambda: self.resident.status()["accessibilityTrusted"], "accessibility to be on")
        self.assertEqual(self.history(), {"custom.accessibility": 1})


class ForwardingTests(PaletteTestCase):
    def test_an_application_that_is_left_alone_gets_the_keystroke(self):
        self.store("rules.appBehaviors", {"debian-xterm": "disabled"})
        terminal = self.launch("xterm", accessible=False)
        terminal.bring_to_front()
        # The window is placed off the pointer, because a child window below the pointer would get the keys.
        self.desktop.windows.place(terminal.window, 0, 0, 400, 300)
        keys = self.directory / "keys.txt"
        with open(keys, "wb") as log:
            witness = subprocess.Popen(["stdbuf", "-oL", "xev", "-event", "keyboard", "-id", str(terminal.window)],
                                       env=self.desktop.environment, stdout=log, stdin=subprocess.DEVNULL)
        self.addCleanup(witness.wait)
        self.addCleanup(witness.terminate)
        self.wait_until(lambda: self.press("shift") or self._presses(keys, "Shift_L"), "the witness to see keys")
        self.start_resident()
        for turn in (1, 2):
            self.press(*HOT_KEY)
            # State 0x5 means that Control and Shift are held.
            self.wait_until(lambda: self._presses(keys, "state 0x5, keycode 33 (keysym 0x50, P)") == turn,
                            "the keystroke to arrive")
            self.wait_until(lambda: not self.keyboard.is_any_key_down(), "the keys to be up")
            self.assertFalse(self.resident.is_open())
            self.wait_until(self._is_hot_key_taken, "the program to take its hot key back")
        editor, _ = self.open_text("mousepad", TEXT)
        self.open_palette()
        self.assertEqual(self.resident.status()["target"], "org.xfce.mousepad")
        editor.end()

    @staticmethod
    def _presses(log, what):
        events = log.read_text(encoding="utf-8", errors="replace").split("\n\n")
        return sum("KeyPress event" in event and what in event for event in events)

    def _is_hot_key_taken(self):
        other = Keyboard(self.desktop.environment)
        try:
            return not other.take_hot_key("p")
        finally:
            other.close()


if __name__ == "__main__":
    main()
