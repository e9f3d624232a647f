"""Windows and keys of the private display, through the tools a person would use."""

import subprocess

TOOL_TIMEOUT = 20


class Windows:
    """The windows on the display, and real key presses."""

    def __init__(self, environment):
        self._environment = environment

    def of_process(self, process_id):
        """The visible windows of a process."""
        found = self._xdotool("search", "--onlyvisible", "--pid", str(process_id))
        return [int(line) for line in found.stdout.split()]

    def active(self):
        """The active window, or None when there is none."""
        # The property is read directly, because tools that look for the active window wait while there is none.
        return self._window_property(None, "_NET_ACTIVE_WINDOW") or None

    def activate(self, window):
        """Asks the window manager to bring the window to the front; see Desktop.bring_to_front to wait."""
        self._xdotool("windowactivate", str(window))

    def place(self, window, x, y, width, height):
        self._xdotool("windowsize", "--sync", str(window), str(width), str(height))
        self._xdotool("windowmove", str(window), str(x), str(y))

    def geometry(self, window):
        """Left, top, width and height in pixels."""
        lines = self._run("xwininfo", "-id", str(window)).stdout.splitlines()
        values = dict(line.strip().split(":", 1) for line in lines if ":" in line)
        return tuple(int(values[name]) for name in ("Absolute upper-left X", "Absolute upper-left Y", "Width",
                                                    "Height"))

    def frame(self, window):
        """The geometry including the frame that the window manager draws around the window."""
        left, top, width, height = self.geometry(window)
        answer = self._run("xprop", "-id", str(window), "_NET_FRAME_EXTENTS").stdout.rpartition("=")[2]
        extents = [int(number) for number in answer.split(",") if number.strip().isdigit()]
        before, after, above, below = extents if len(extents) == 4 else (0, 0, 0, 0)
        return left - before, top - above, width + before + after, height + above + below

    def stacking(self):
        """The windows that the window manager knows, the lowest first."""
        answer = self._run("xprop", "-root", "_NET_CLIENT_LIST_STACKING").stdout
        return [int(number, 16) for number in answer.rpartition("#")[2].split(",") if number.strip()]

    def remove_root_property(self, name):
        self._run("xprop", "-root", "-remove", name)

    def minimize(self, window):
        self._xdotool("windowminimize", str(window))

    def title(self, window):
        return self._xdotool("getwindowname", str(window)).stdout.strip()

    def press_keys(self, *keys):
        """Presses and releases each key or chord, e.g. "ctrl+s", as if on the keyboard."""
        self._xdotool("key", "--clearmodifiers", *keys)

    def type_text(self, text):
        self._xdotool("type", "--clearmodifiers", text)

    def turn_wheel(self, window, button):
        """Turns the mouse wheel once (4 up, 5 down) over the middle of the window."""
        x, y, width, height = self.geometry(window)
        self._xdotool("mousemove", str(x + width // 2), str(y + height // 2), "click", str(button))

    def point_at(self, x, y):
        self._xdotool("mousemove", str(x), str(y))

    def click(self, x, y):
        self._xdotool("mousemove", str(x), str(y), "click", "1")

    def move_pointer(self, right, down):
        self._xdotool("mousemove_relative", "--", str(right), str(down))

    def hold_button(self):
        self._xdotool("mousedown", "1")

    def release_button(self):
        self._xdotool("mouseup", "1")

    def flick(self, right, down):
        """Drags and releases before any program can react to the press."""
        self._xdotool("mousedown", "1", "mousemove_relative", "--", str(right), str(down), "mouseup", "1")

    def has_window_manager(self):
        # A window manager announces itself before it listens, and publishes windows and focus later, in any order.
        announced = self._window_property(None, "_NET_SUPPORTING_WM_CHECK")
        return (announced is not None and self._window_property(announced, "_NET_SUPPORTING_WM_CHECK") == announced
                and any(self._window_property(None, name) is not None
                        for name in ("_NET_CLIENT_LIST", "_NET_ACTIVE_WINDOW")))

    def focused(self):
        """The window with the input focus, or None."""
        answer = self._xdotool("getwindowfocus", "-f").stdout.strip()
        return int(answer) if answer.isdigit() and int(answer) > 1 else None

    def give_focus(self, window):
        """Sets the input focus without asking a window manager: the window stays below those that are above it."""
        self._xdotool("windowfocus", str(window))

    def _window_property(self, window, name):
        """The first window in a property of a window, or of the root window; 0 when it is empty, None without the
        property."""
        place = ["-root"] if window is None else ["-id", str(window)]
        answer = self._run("xprop", *place, name).stdout
        if "window id #" not in answer:
            return None
        number = answer.rpartition("#")[2].split(",")[0].strip()
        return int(number, 16) if number else 0

    def _xdotool(self, *arguments):
        return self._run("xdotool", *arguments)

    def _run(self, *command):
        return subprocess.run(command, env=self._environment, capture_output=True, text=True, check=False,
                              stdin=subprocess.DEVNULL, timeout=TOOL_TIMEOUT)
