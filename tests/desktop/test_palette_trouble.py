"""Applications that hang or die, invalid preferences, a hot key that is taken: the program neither hangs
nor ends."""

import signal
import subprocess

from harness.keyboard import Keyboard
from harness.palette_testing import PaletteTestCase, main

TEXT = "the quick brown fox\n"


class TroubleTests(PaletteTestCase):
    def test_an_application_that_hangs_or_dies(self):
        other, _ = self.open_text("featherpad", TEXT)
        self.start_resident()
        for what in ("hangs before", "dies while open", "dies before the press"):
            with self.subTest(what=what):
                editor, _ = self.open_text("mousepad", TEXT)
                if what == "hangs before":
                    editor.stop()
                self.open_palette()
                if what == "hangs before":
                    self.assertEqual(self.resident.rows(), [])
                    self.press("Escape")
                    self.wait_until_closed()
                    editor.resume()
                else:
                    self.type("select all")
                    if what == "dies while open":
                        editor.kill()
                    self.press("Return")
                    editor.kill()
                    self.wait_until_closed()
                editor.end()
                other.bring_to_front()
                self.open_palette()
                self.type("select all")
                self.assertIn("Select All", self.resident.rows()[0])
                self.press("Escape")
                self.wait_until_closed()

    def test_invalid_preferences(self):
        self.open_text("mousepad", TEXT)
        key = "KeyboardShortcuts_togglePalette"
        for value in (("--bool", "false"), ("--bool", "true"), ("--string", "nonsense"),
                      ("--string", '{"carbonKeyCode":-1,"carbonModifiers":768}'),
                      ("--string", '{"carbonKeyCode":127,"carbonModifiers":768}')):
            with self.subTest(shortcut=value):
                self.tovrel.expect("preferences", "write", key, *value)
                self.tovrel.expect("preferences", "write", "paletteSettings.showCheckedStatus", "--string", "no")
                self.tovrel.expect("preferences", "write", "rules.appBehaviors", "--data", "[")
                before = self.tovrel.expect("preferences", "read", key).output
                resident = self.start_resident()
                self.assertEqual(self.tovrel.expect("preferences", "read", key).output, before)
                self.tovrel.expect("toggle")
                self.wait_until(resident.has_focus, "the palette to open all the same")
                self.assertEqual(resident.end(), 0)
                self.assertEqual(resident.errors, "")

    def test_a_hot_key_that_another_program_has(self):
        self.open_text("mousepad", TEXT)
        other = Keyboard(self.desktop.environment)
        self.addCleanup(other.close)
        self.assertTrue(other.take_hot_key("p"))
        self.start_resident()
        self.assertEqual(self.resident.output, "Error registering hotkey ⇧⌘P: 10\n")
        self.tovrel.expect("toggle")
        self.wait_until(self.resident.has_focus, "the palette to open")
        self.tovrel.expect("toggle")
        self.wait_until_closed()

    def test_starting_twice_and_ending(self):
        self.open_text("mousepad", TEXT)
        for end in ("quit", signal.SIGTERM, signal.SIGINT):
            self.start_resident()
            second = subprocess.run([self.tovrel.path], env=self.desktop.environment, timeout=20, check=False,
                                    capture_output=True)
            self.assertEqual((second.returncode, second.stdout, second.stderr), (0, b"", b""))
            self.wait_until(self.resident.has_focus, "the palette to open")
            if end == "quit":
                self.tovrel.expect("quit")
            else:
                self.resident.process.send_signal(end)
            self.assertEqual(self.resident.process.wait(timeout=20), 0)
            self.assert_fails_in_one_line(self.tovrel.run("quit"), "not running")
            self.assertEqual((self.resident.output, self.resident.errors), ("", ""))


if __name__ == "__main__":
    main()
