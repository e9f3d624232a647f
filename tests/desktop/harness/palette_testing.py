"""The common part of the tests of the palette."""

import json

from .keyboard import Keyboard
from .resident import HOT_KEY, Resident
from .testing import DesktopTestCase, main

__all__ = ["PaletteTestCase", "main", "HOT_KEY"]


class PaletteTestCase(DesktopTestCase):
    """Tests with a keyboard, and with the resident program where they start it."""

    def setUp(self):
        super().setUp()
        self.keyboard = Keyboard(self.desktop.environment)
        self.addCleanup(self.keyboard.close)
        self.resident = None

    def start_resident(self, prints_to=None, **environment):
        self.resident = Resident(self.desktop, self.directory, environment, prints_to=prints_to)
        self.addCleanup(self.resident.end)
        return self.resident

    def store(self, key, document):
        self.tovrel.expect("preferences", "write", key, "--json", json.dumps(document))

    def history(self):
        """The command ids in the history, each with its number of uses."""
        answer = self.tovrel.run("preferences", "read", "Tovrel.commandHistory")
        if answer.status != 0:
            return {}
        return {key: entry["usageCount"] for key, entry in answer.json.items()}

    def press(self, *keys):
        self.keyboard.chord(*keys).send()

    def open_palette(self):
        self.press(*HOT_KEY)
        self.wait_until(self.resident.has_focus, "the palette to open")

    def type(self, text):
        self.keyboard.type(text).send()
        self.wait_until(lambda: self.resident.query() == text, f"{text!r} in the search field")

    def wait_until_asked(self, palette):
        """Waits for a question over the palette, whose window is `palette`."""
        self.wait_until(lambda: self.desktop.front_window() not in (None, palette) and self.resident.has_focus(),
                        "the question")

    def wait_until_closed(self):
        self.wait_until(lambda: not self.resident.is_open() and self.resident.window is None,
                        "the palette to close")

    def wait_until_in_front(self, application):
        self.wait_until(lambda: self.desktop.front_window() == application.window and application.is_active(),
                        "the application to be in front")
