"""The keyboard is never held for long, whatever the program waits for: what is typed after the hot key reaches the
application in front or the palette."""

import os
import signal
from pathlib import Path

from harness.palette_testing import HOT_KEY, PaletteTestCase, main
from harness.process_tree import descendants
from harness.stalled_thread import stalled_main_thread

# The longest a user may wait for a key, with room for a busy machine.
SOON = 2.0


class KeyboardGuardTests(PaletteTestCase):
    def setUp(self):
        super().setUp()
        self.editor, _ = self.open_text("mousepad", "")
        self.start_resident()
        self.wait_until_in_front(self.editor)

    def test_two_presses_while_the_main_thread_is_stalled(self):
        with stalled_main_thread(self.resident.pid):
            for text in ("abcde", "abcdefghij"):
                self.press(*HOT_KEY)
                self.keyboard.type(text[-5:]).send()
                self.wait_until(lambda: self.editor.text() == text, f"{text} in the editor", timeout=SOON)
        self.wait_until(lambda: not self.keyboard.is_any_key_down(), "the keys to be up")
        if self.resident.is_open():
            self.press("Escape")
        self.wait_until_closed()
        self.wait_until_in_front(self.editor)
        self.open_palette()
        self.type("copy")

    def test_the_launcher_of_the_accessibility_bus_does_not_answer(self):
        launcher, = [process for process in descendants(os.getpid())
                     if Path(f"/proc/{process}/comm").read_text().startswith("at-spi-bus-laun")]
        os.kill(launcher, signal.SIGSTOP)
        self.addCleanup(os.kill, launcher, signal.SIGCONT)
        self.press(*HOT_KEY)
        self.keyboard.type("abcde").send()

        def arrived():
            if self.desktop.front_window() == self.editor.window:
                return self.editor.text() == "abcde"  # The palette is not shown yet and cannot answer.
            return self.resident.query() == "abcde"

        self.wait_until(arrived, "all letters in one place", timeout=SOON)


if __name__ == "__main__":
    main()
