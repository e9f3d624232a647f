"""The measured programs: the resident program over an application, and a launcher in its place."""

import json
import re
import subprocess
import time
from pathlib import Path

from harness.resident import Resident
from harness.waiting import wait_until

HOT_KEY = "ctrl+shift+p"
PEER_HOT_KEY = "ctrl+shift+o"
# Parts of a screen of 1280 × 800 pixels. PANEL is the palette's place without its corners, where the window shows.
PANEL = (300, 114, 680, 412)
FIELD = (364, 100, 380, 60)
ROWS = (310, 190, 640, 340)
# The window covers the screen; carets, which blink, are at its left edge.
WINDOW = (0, 0, 1270, 760)
# Menus are read again after half a minute.
CACHE_SECONDS = 30
MARGIN_SECONDS = 1.5
# FeatherPad shows the administrator a notice for ten seconds, in the middle of its window.
FEATHERPAD = "FeatherPad (Qt 5)"
FEATHERPAD_SECONDS = 12
MANY_MENU_ITEMS = Path(__file__).with_name("many_menu_items.py")


def applications():
    """The names of the applications, each with the command that starts a process of its own."""
    return {FEATHERPAD: ["featherpad", "--standalone"],
            "Mousepad (GTK 3)": ["mousepad", "--disable-server"],
            "300 items (generated, GTK 3)": generated(300),
            "600 items (generated, GTK 3)": generated(600)}


def still_carets(home):
    """Stops the blinking of carets in GTK 3, which would never come to rest."""
    settings = Path(home) / ".config" / "gtk-3.0" / "settings.ini"
    settings.parent.mkdir(parents=True, exist_ok=True)
    settings.write_text("[Settings]\ngtk-cursor-blink=false\n", encoding="utf-8")


def generated(items):
    """The command that starts an application with so many items in its menu bar and nothing that moves."""
    return ["/usr/bin/python3", str(MANY_MENU_ITEMS), str(items)]


def window_manager(directory):
    """The command of Openbox with one more key, which starts the peer."""
    system = Path("/etc/xdg/openbox/rc.xml").read_text(encoding="utf-8")
    binding = (f'<keyboard><keybind key="C-S-o"><action name="Execute"><command>sh -c ". {directory}/peer"</command>'
               "</action></keybind>")
    configuration = Path(directory) / "openbox.xml"
    configuration.write_text(re.sub("<keyboard>", lambda _: binding, system, count=1), encoding="utf-8")
    return ("openbox", "--sm-disable", "--config-file", str(configuration))


def launch(desktop, *commands):
    """Starts an application of each command, all over the whole screen, the last in front."""
    applications, quiet = [], 0.0
    for command in commands:
        applications.append(desktop.launch(command))
        desktop.windows.place(applications[-1].window, *WINDOW)
        if command[0] == "featherpad":
            quiet = time.monotonic() + FEATHERPAD_SECONDS
    applications[-1].bring_to_front()
    wait_for_time(quiet)
    return applications


class Palette:
    """The resident program, opened and closed by keys."""

    def __init__(self, desktop, watch, program):
        self._watch = watch
        self.resident = Resident(desktop, desktop.home, program=program)
        self._scanned = None

    @property
    def pid(self):
        return self.resident.pid

    def end(self):
        if self.resident.end() != 0 or self.resident.errors:
            raise RuntimeError(f"the resident program ended badly: {self.resident.errors}")

    def over(self, application):
        """Opens it over this application from now on, whose menus it reads first."""
        application.bring_to_front()
        self._watch.watch(*PANEL)
        self._settle()
        self.open()
        self._scanned = time.monotonic()
        self.close()

    def open(self, *more_keys):
        """The times from the hot key, and keys typed with it, to changes in the watched area."""
        return self._watch.time(HOT_KEY, *more_keys)

    def open_warm(self, *more_keys):
        """The same as `open`, over menus that are known."""
        if time.monotonic() - self._scanned > CACHE_SECONDS - MARGIN_SECONDS:
            wait_for_time(self._scanned + CACHE_SECONDS + MARGIN_SECONDS)
            self.open()
            self._scanned = time.monotonic()
            self.close()
        return self.open(*more_keys)

    def close(self):
        """Closes it; returns the milliseconds until the content below it is visible again."""
        self._watch.press("Escape")
        milliseconds = self._watch.wait_until_restored()
        self._watch.wait_for_rest()
        return milliseconds

    def watch(self, area):
        """Watches another part of the screen from now on; to be called while it is closed."""
        self._watch.watch(*area)
        self._settle()

    def _settle(self):
        self._watch.wait_for_rest()
        self._watch.remember()


def store_custom_commands(program, environment, titles):
    commands = [{"id": f"C{number}", "title": title, "kind": "open", "payload": "https://example.org/",
                 "aliases": [], "isEnabled": True} for number, title in enumerate(titles)]
    document = {"customCommands": {"type": "data", "value": json.dumps(commands)}}
    subprocess.run([program, "preferences", "import"], env=environment, input=json.dumps(document), text=True,
                   check=True)


def many_titles(count):
    """Titles of which "ex" finds all and "ext" all but the first twenty, so that every visible row changes."""
    return [f"Export archive {number:02}" if number < 20 else f"Extract page {number:04}" for number in range(count)]


def wait_for_time(moment):
    wait_until(lambda: time.monotonic() >= moment, "the time", timeout=2 * CACHE_SECONDS)
