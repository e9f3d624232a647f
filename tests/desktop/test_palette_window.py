"""The palette opens, stays and closes when it should, and leaves nothing behind."""

import os
from pathlib import Path

from harness.palette_testing import HOT_KEY, PaletteTestCase, main

TEXT = "the quick brown fox\n"


class WindowTests(PaletteTestCase):
    def setUp(self):
        super().setUp()
        self.editor, _ = self.open_text("mousepad", TEXT)
        self.start_resident()

    def test_every_way_of_closing_gives_the_focus_back(self):
        for way in (HOT_KEY, ("Escape",), ("ctrl", "w"), ("shift", "Escape")):
            with self.subTest(keys=way):
                self.open_palette()
                self.press(*way)
                self.wait_until_closed()
                self.wait_until_in_front(self.editor)
        self.assertEqual(self.editor.text().strip(), TEXT.strip())

    def test_another_application_closes_it_and_gets_its_own(self):
        other, _ = self.open_text("featherpad", TEXT)
        self.open_palette()
        self.assertEqual(self.resident.status()["target"], "featherpad")
        self.editor.bring_to_front()
        self.wait_until_closed()
        self.open_palette()
        self.assertEqual(self.resident.status()["target"], "org.xfce.mousepad")
        self.wait_until(lambda: any("Close Window" in row for row in self.resident.rows()), "its commands")
        other.end()

    def test_it_is_above_the_application_in_the_middle_of_the_screen(self):
        self.open_palette()
        left, top, width, height = self.desktop.windows.geometry(self.resident.window)
        self.assertEqual((width, height), (680, 460))
        self.assertEqual((left, top), ((1280 - 680) // 2, 800 // 2 - 80 - 460 // 2))
        stack = self.desktop.windows.stacking()
        self.assertGreater(stack.index(self.resident.window), stack.index(self.editor.window))

    def test_holding_the_hot_key_is_one_press(self):
        self.keyboard.hold(*HOT_KEY).send()
        self.wait_until(self.resident.is_open, "the palette to open")
        # The server repeats a held key some 25 times a second, after two thirds of a second.
        self.wait_until(lambda: self.keyboard.seconds_held() > 1.2, "the key to repeat")
        self.assertTrue(self.resident.is_open())
        self.keyboard.release(*reversed(HOT_KEY)).send()
        self.press(*HOT_KEY)
        self.wait_until_closed()

    def test_two_hundred_rapid_presses_leave_nothing_behind(self):
        self.open_palette()
        self.press("Escape")
        self.wait_until_closed()
        before = self._resources()
        for _ in range(200):
            self.keyboard.chord(*HOT_KEY)
        self.keyboard.send()
        self.wait_until(lambda: self.keyboard.can_be_grabbed(), "the keyboard to be free")
        # Two presses within some milliseconds may count as one.
        if self.resident.is_open():
            self.wait_until(self.resident.has_focus, "the palette to be in front")
            self.press("Escape")
        self.wait_until_closed()
        self.wait_until_in_front(self.editor)
        self.assertFalse(self.keyboard.is_any_key_down())
        self.assertEqual(self.editor.text().strip(), TEXT.strip())
        descriptors, memory = self._resources()
        self.assertLessEqual(descriptors, before[0])
        # A sanitizer keeps freed memory.
        if "TOVREL_TEST_SANITIZED" not in os.environ:
            self.assertLess(memory, before[1] + 8 * 1024, "KiB")
        self.open_palette()

    def _resources(self):
        process = Path("/proc", str(self.resident.pid))
        memory = next(line for line in (process / "smaps_rollup").read_text().splitlines()
                      if line.startswith("Private_Dirty:"))
        return len(os.listdir(process / "fd")), int(memory.split()[1])


if __name__ == "__main__":
    main()
