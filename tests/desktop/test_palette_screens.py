"""The palette on a desktop with two screens: it appears on the screen of the application in front."""

import subprocess

from harness.palette_testing import PaletteTestCase, main
from harness.requirements import require

PANEL = (680, 460)
WINDOW = (700, 500)


class ScreenTests(PaletteTestCase):
    """One framebuffer with two monitors, a smaller and a larger part of it."""

    size = (2600, 900)
    screens = {"left": (0, 0, 1280, 800), "right": (1280, 0, 1320, 900)}

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        require("xrandr")
        # The first monitor takes the only output from the monitor that covers everything.
        for (name, (x, y, width, height)), output in zip(cls.screens.items(), ("screen", "none")):
            subprocess.run(["xrandr", "--setmonitor", name, f"{width}/320x{height}/200+{x}+{y}", output],
                           env=cls.desktop.environment, check=True, timeout=20, stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL)

    def test_it_is_on_the_screen_of_the_application_in_front(self):
        left, _ = self.open_text("mousepad", "left")
        right, _ = self.open_text("featherpad", "right")
        for application, x in ((left, 100), (right, 1400)):
            self.desktop.windows.place(application.window, x, 100, *WINDOW)
        self.start_resident()
        for application, screen in ((right, "right"), (left, "left"), (right, "right")):
            with self.subTest(screen=screen):
                application.bring_to_front()
                self.open_palette()
                x, y, width, height = self.screens[screen]
                self.assertEqual(self.desktop.windows.geometry(self.resident.window),
                                 (x + (width - PANEL[0]) // 2, y + height // 2 - 80 - PANEL[1] // 2, *PANEL))
                self.press("Escape")
                self.wait_until_closed()


if __name__ == "__main__":
    main()
