"""The palette takes the keyboard and gives it back under window managers with rules of focus of their own."""

from harness.palette_testing import HOT_KEY, PaletteTestCase, main

TEXT = "the quick brown fox\n"


class FocusRules:
    """What must hold under each window manager."""

    def test_it_takes_the_keyboard_and_gives_it_back(self):
        editor, _ = self.open_text("mousepad", TEXT)
        self.start_resident()
        for word in ("select", "abcdefghij", "upper"):
            self.keyboard.chord(*HOT_KEY).type(word).send()
            self.wait_until(lambda: self.resident.query() == word, "all letters")
            self.wait_until(self.resident.has_focus, "the palette to be in front")
            stack = self.desktop.windows.stacking()
            self.assertGreater(stack.index(self.resident.window), stack.index(editor.window))
            self.press("Escape")
            self.wait_until_closed()
            self.wait_until_in_front(editor)
        self.assertEqual(editor.text().strip(), TEXT.strip())


class MetacityTests(FocusRules, PaletteTestCase):
    """Gives a window that is shown the focus only if it tells by which key press it was caused."""

    window_manager = ("metacity", "--sm-disable")


class Xfwm4Tests(FocusRules, PaletteTestCase):
    """Is its own compositor, as it is set up by default."""

    window_manager = ("xfwm4",)


if __name__ == "__main__":
    main()
