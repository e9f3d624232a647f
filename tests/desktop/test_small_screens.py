"""Screens that are too small for the windows: everything can be seen and reached."""

import os
from pathlib import Path

from harness.palette_testing import PaletteTestCase, main
from harness.settings_window import SettingsWindow

# The pages, each with a control near its end.
PAGES = {"General": ("Show checked status of menu items", "check box"), "Apps": ("Choose Application", "push button"),
         "Menu Filter": ("Hide", "combo box"), "Commands": ("Enabled", "check box"), "History": ("Favorite", "check box")}


class SmallScreen:
    """The checks on each small screen."""

    def test_the_palette_and_the_settings_are_on_the_screen(self):
        editor, _ = self.open_text("mousepad", "small\n")
        self.start_resident(QT_SCALE_FACTOR=str(self.scale))
        self.open_palette()
        self.type("select")
        self.assert_on_screen(self.resident.window, (round(680 * self.scale), round(460 * self.scale)))
        self.picture("palette")
        self.press("Escape")
        self.wait_until_closed()
        editor.bring_to_front()
        settings = SettingsWindow(self.desktop, self.resident, self.keyboard)
        settings.open(self.tovrel)
        for page, last in PAGES.items():
            settings.select_tab(page)
            self.assert_on_screen(self.resident.window)
            self.picture(f"settings-{page}")
            settings.wait_for(*last)
            settings.focus(*last)
            self.picture(f"settings-{page}-end")
        settings.close()

    def assert_on_screen(self, window, size=None):
        left, top, width, height = self.desktop.windows.frame(window)
        self.assertGreaterEqual(min(left, top), 0)
        self.assertLessEqual(left + width, self.size[0])
        self.assertLessEqual(top + height, self.size[1])
        if size:
            self.assertEqual((width, height), size)

    def picture(self, name):
        """Takes a picture for people to look at."""
        if folder := os.environ.get("TOVREL_TEST_PICTURES"):
            width, height = self.size
            self.desktop.take_picture(Path(folder) / "small" / f"{width}x{height}-{self.scale}-{name}.png")


class NetbookTests(SmallScreen, PaletteTestCase):
    size = (1024, 600)
    scale = 1


class LaptopTests(SmallScreen, PaletteTestCase):
    size = (1366, 768)
    scale = 1.25


class DenseTests(SmallScreen, PaletteTestCase):
    size = (1920, 1080)
    scale = 2


if __name__ == "__main__":
    main()
