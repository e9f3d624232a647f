"""The palette on a desktop without a window manager."""

from harness.palette_testing import HOT_KEY, PaletteTestCase, main

TEXT = "the quick brown fox\n"


class UnmanagedTests(PaletteTestCase):
    """Only the applications themselves move the focus."""

    window_manager = None

    def test_it_takes_the_keyboard_runs_commands_and_gives_it_back(self):
        editor, _ = self.open_text("mousepad", TEXT)
        text = editor.tree.find("text")
        self.start_resident()
        for word in ("abcdefghij", "delete line"):
            self.keyboard.chord(*HOT_KEY).type(word).send()
            self.wait_until(lambda: self.resident.query() == word, "all letters")
            self.wait_until(self.resident.has_focus, "the palette to have the focus")
            self.assertEqual(self.resident.status()["target"], "org.xfce.mousepad")
            self.press("Return" if word == "delete line" else "Escape")
            self.wait_until_closed()
            self.wait_until_in_front(editor)
        self.wait_until(lambda: text.text == "", "the line to be deleted")
        self.keyboard.type("x").send()
        self.wait_until(lambda: text.text == "x", "the letter typed afterwards")


if __name__ == "__main__":
    main()
