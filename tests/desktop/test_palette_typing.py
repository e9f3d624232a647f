"""The text that the search field gets from keys that are no letters by themselves."""

import subprocess

from harness.keyboard import Keyboard
from harness.palette_testing import PaletteTestCase, main
from harness.requirements import require


class TypingTests(PaletteTestCase):
    def setUp(self):
        super().setUp()
        require("setxkbmap")
        self.open_text("mousepad", "")
        self.start_resident()

    def test_dead_keys_of_a_layout_that_is_chosen_meanwhile(self):
        self._use_layout("fr", "oss")
        self.addCleanup(self._use_layout, "us", "")
        # A new keyboard, because the other one has read the positions of the keys when it was made.
        self.keyboard = Keyboard(self.desktop.environment)
        self.addCleanup(self.keyboard.close)
        self.open_palette()
        self.keyboard.chord("dead_circumflex").type("e").type("a").send()
        self.wait_until(lambda: self.resident.query() == "êa", "the letter with its accent")
        self.press("Escape")
        self.wait_until_closed()

    def _use_layout(self, layout, variant):
        subprocess.run(["setxkbmap", "-layout", layout, "-variant", variant], env=self.desktop.environment,
                       check=True, timeout=20, stdin=subprocess.DEVNULL)


if __name__ == "__main__":
    main()
