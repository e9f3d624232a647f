"""The palette takes the keyboard and gives it back under window managers with rules of focus of their own."""

from harness.palette_testing import HOT_KEY, PaletteTestCase, main

TEXT = "the quick brown fox\n"


class FocusRules:
    """The rules that must hold under each window manager."""

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

    def test_it_is_moved_by_its_background_and_stays_there(self):
        self.open_text("mousepad", TEXT)
        self.start_resident()
        self.open_palette()
        windows = self.desktop.windows
        for way in ("drag", "drag", "flick"):
            with self.subTest(way=way):
                left, top, width, _ = windows.geometry(self.resident.window)
                windows.point_at(left + width // 2, top + 8)
                if way == "flick":
                    windows.flick(30, 15)
                else:
                    windows.hold_button()
                    self.wait_until(lambda: self.follows(left), "the palette to follow the pointer")
                    windows.release_button()
                self.wait_until(self.keyboard.can_pointer_be_grabbed, "the pointer to be free")
                left, top, *_ = windows.geometry(self.resident.window)
                windows.point_at(left + 20, top + 300)
                # These keys are answered after the window manager has handled the pointer.
                self.type("x")
                self.press("BackSpace")
                self.wait_until(lambda: self.resident.query() == "", "an empty search field")
                self.assertTrue(self.keyboard.can_pointer_be_grabbed())
                self.assertEqual(windows.geometry(self.resident.window)[:2], (left, top))
        self.press("Escape")
        self.wait_until_closed()

    def follows(self, left):
        self.desktop.windows.move_pointer(10, 5)
        return self.desktop.windows.geometry(self.resident.window)[0] > left

    def test_escape_gives_the_focus_back_below_another_window(self):
        editor, _ = self.open_text("mousepad", TEXT)
        other, _ = self.open_text("featherpad", TEXT)
        windows = self.desktop.windows
        windows.place(editor.window, 100, 100, 500, 400)
        windows.place(other.window, 300, 200, 500, 400)
        self.start_resident()
        windows.give_focus(editor.window)
        self.wait_until_in_front(editor)
        for _ in range(3):
            self.open_palette()
            self.press("Escape")
            self.wait_until_closed()
            self.wait_until_in_front(editor)
            self.assertEqual(windows.stacking()[-1], other.window)

    def test_the_window_manager_killed(self):
        editor, _ = self.open_text("mousepad", TEXT)
        self.start_resident()
        self.desktop.kill_window_manager()
        self.addCleanup(self.desktop.start_window_manager)
        windows = self.desktop.windows
        windows.give_focus(editor.window)
        for word in ("abcdef", "delete line"):
            self.keyboard.chord(*HOT_KEY).type(word).send()
            self.wait_until(lambda: self.resident.query() == word, "all letters")
            self.press("Return" if word == "delete line" else "Escape")
            self.wait_until_closed()
            self.wait_until(lambda: windows.focused() == editor.window, "the editor to have the focus")
        self.wait_until(lambda: editor.text() == "", "the line to be deleted")
        self.keyboard.type("x").send()
        self.wait_until(lambda: editor.text() == "x", "the letter typed afterwards")


class OpenboxTests(FocusRules, PaletteTestCase):
    """The window manager of the other tests."""


class MetacityTests(FocusRules, PaletteTestCase):
    """Metacity gives a new window the focus only if the window names the key press that caused it."""

    window_manager = ("metacity", "--sm-disable")


class Xfwm4Tests(FocusRules, PaletteTestCase):
    """Xfwm4 is its own compositor in its default setup."""

    window_manager = ("xfwm4",)


if __name__ == "__main__":
    main()
