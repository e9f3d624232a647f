"""The settings window as a screen reader sees it, driven by real keys."""

import itertools

from gi.repository import GLib

from .waiting import TimedOut, wait_until

# More steps than a page has controls, so that the focus has been everywhere after them.
MOST_STEPS = 60
# The turns of the mouse wheel from one end of a page to the other.
MOST_TURNS = 10
UP, DOWN = 4, 5


class SettingsWindow:
    """The window of a resident program that shows its settings."""

    def __init__(self, desktop, resident, keyboard):
        self._desktop = desktop
        self._resident = resident
        self._keyboard = keyboard

    def open(self, tovrel):
        """Opens it by the command line, and waits until it has the keyboard."""
        tovrel.expect("settings")
        wait_until(self.has_focus, "the settings window to be in front")

    def close(self):
        self.press("ctrl", "w")
        wait_until(lambda: self._frame() is None, "the settings window to close")

    def has_focus(self):
        frame = self._frame()
        return frame is not None and "active" in frame.states

    def press(self, *keys):
        self._keyboard.chord(*keys).send()

    def type(self, text):
        self._keyboard.type(text).send()

    def focused(self):
        """The node that has the keyboard focus, or None."""
        # A container of the focused node may call itself focused, too.
        return self._last(lambda node: "focused" in node.states)

    def node(self, name, role):
        """The node on the screen with that name and role, or None."""
        return self._first(lambda node: node.role == role and node.name == name and "showing" in node.states)

    def nodes(self, role):
        """All nodes of that role on the screen."""
        return self._all(lambda node: node.role == role and "showing" in node.states)

    def wait_for(self, name, role):
        """Waits until the control is on the screen, and scrolls through the page for it."""
        directions = itertools.cycle([DOWN] * MOST_TURNS + [UP] * MOST_TURNS)

        def found():
            node = self.node(name, role)
            if node is None:
                self._desktop.windows.turn_wheel(self._window(), next(directions))
            return node

        return wait_until(found, f"the {role} {name!r}")

    def wait_until_gone(self, name, role):
        wait_until(lambda: self.node(name, role) is None, f"the {role} {name!r} to go")

    def is_checked(self, name):
        return "checked" in self.wait_for(name, "check box").states

    def focus(self, name, role):
        """Moves the focus, key by key, to the control with that name and role."""
        met = []
        for _ in range(MOST_STEPS):
            focused = self.focused()
            if focused is not None:
                if (focused.name, focused.role) == (name, role):
                    return
                met.append(f"{focused.role} {focused.name!r}")
            before = focused and focused.identity
            self.press("Tab")
            wait_until(lambda: getattr(self.focused(), "identity", None) not in (before, None), "the focus to move")
        raise TimedOut(f"the Tab key never reached the {role} {name!r}; it reached {', '.join(dict.fromkeys(met))}")

    def activate(self, name, role="push button"):
        """Presses the control with that name."""
        self.focus(name, role)
        self.press(" ")

    def write(self, name, text):
        """Replaces the content of the field with that name."""
        self.focus(name, "text")
        self.press("ctrl", "a")
        self.type(text)
        wait_until(lambda: self.wait_for(name, "text").text == text, f"{text!r} in the field {name!r}")

    def select_tab(self, name):
        self.activate(name, "page tab")
        self.wait_for(name, "heading")

    def pick(self, name, words, choice):
        """Opens the searchable picker with that name, types, and takes the choice that is then first."""
        self.activate(name, "combo box")
        self.wait_for("Search", "text")
        self.type(words)
        wait_until(lambda: self._rows(name)[:1] == [choice], f"{choice!r} to be the first choice")
        self.press("Return")
        wait_until(lambda: getattr(self.focused(), "role", None) == "combo box",
                   "the focus to be back on the picker")

    def segment(self, group, steps):
        """Moves the choice of a group of segments by `steps` to the right, or to the left if negative."""
        self.focus(group, "panel")
        for _ in range(abs(steps)):
            self.press("Right" if steps > 0 else "Left")

    def _window(self):
        return next(window for window in self._desktop.windows.of_process(self._resident.pid))

    def _rows(self, name):
        rows = self.node(name, "list")
        return [row.name for row in rows.children if "showing" in row.states] if rows else []

    def _frame(self):
        tree = self._desktop.witness.application(self._resident.pid)
        try:
            for frame in tree.children if tree else []:
                # The palette has a window of the same name.
                if "showing" in frame.states and any(node.role == "page tab list" for node in frame.walk()):
                    return frame
        except GLib.Error:
            pass
        return None

    def _first(self, is_wanted):
        return next(iter(self._all(is_wanted)), None)

    def _last(self, is_wanted):
        return next(iter(self._all(is_wanted)[::-1]), None)

    def _all(self, is_wanted):
        """All such nodes in reading order; none while nodes vanish."""
        frame = self._frame()
        try:
            return [node for node in frame.walk() if is_wanted(node)] if frame else []
        except GLib.Error:
            return []
