"""From the hot key to the effect in the application, with real keys, over a GTK and a Qt application."""

from harness.menu_witness import menu_entry
from harness.palette_testing import HOT_KEY, PaletteTestCase, main

TEXT = "the quick brown fox\n"
# An application's identifier, and the letters that find a command which changes the text.
EDITORS = {"mousepad": ("org.xfce.mousepad", "delete line"), "featherpad": ("featherpad", "date and time")}


class RoadTests(PaletteTestCase):
    def test_commands_are_found_run_and_remembered(self):
        self.start_resident()
        for editor, (identifier, query) in EDITORS.items():
            with self.subTest(editor=editor):
                application, file = self.open_text(editor, TEXT)
                text = application.tree.find("text")
                self.open_palette()
                self.type("select all")
                # Some applications disable what needs the focus as soon as another window has it.
                self.assertRegex(self.resident.rows()[0], "^Select All, Edit, Ctrl.A")
                self.press("Return")
                self.wait_until_closed()
                self.wait_until_in_front(application)
                self.wait_until(lambda: "sensitive" in menu_entry(application.tree, "Edit", "Copy").states,
                                "a selection")
                self.open_palette()
                self.type(query)
                self.press("Return")
                self.wait_until(lambda: text.text.strip() != TEXT.strip(), "the text to change")
                self.assertEqual(file.read_text(encoding="utf-8"), TEXT)
                # A shortcut of the application runs its command from inside the palette.
                self.open_palette()
                self.press("ctrl", "a")
                self.wait_until_closed()
                self.assertEqual(self.history().get(f"menu:{identifier}:Edit/Select All"), 2)
                self.assertEqual(len(self.history()), 2)
                self.tovrel.expect("preferences", "delete", "Tovrel.commandHistory")
                application.end()
        self.assertEqual((self.resident.output, self.resident.errors), ("", ""))

    def test_no_letter_typed_with_the_hot_key_is_lost_or_leaks(self):
        self.start_resident()
        words = ("abcdefghij", "selectallx", "qwertyuiop")
        for editor in EDITORS:
            with self.subTest(editor=editor):
                application, _ = self.open_text(editor, TEXT)
                text = application.tree.find("text")
                for turn in range(100):
                    word = words[turn % len(words)]
                    self.keyboard.chord(*HOT_KEY).type(word).send()
                    self.wait_until(lambda: self.resident.query() == word, f"all letters in turn {turn}",
                                    timeout=5)
                    self.wait_until(self.resident.has_focus, "the window manager to follow")
                    self.press("Escape")
                    self.wait_until_in_front(application)
                self.assertEqual(text.text.strip(), TEXT.strip())
                application.end()


if __name__ == "__main__":
    main()
