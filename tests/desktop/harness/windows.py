"""Windows and keys of the private display, through the tools a person would use."""

import subprocess

TOOL_TIMEOUT = 20


class Windows:
    """What is on the display, and real key presses."""

    def __init__(self, environment):
        self._environment = environment

    def of_process(self, process_id):
        """The visible windows of a process."""
        found = self._xdotool("search", "--onlyvisible", "--pid", str(process_id))
        return [int(line) for line in found.stdout.split()]

    def active(self):
        """The active window, or None when there is none."""
        # Read as it is: tools that look for the active window wait while there is none.
        answer = self._run("xprop", "-root", "_NET_ACTIVE_WINDOW").stdout
        number = answer.rpartition("#")[2].strip()
        return int(number, 16) or None if number.startswith("0x") else None

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

    def stacking(self):
        """The windows that the window manager knows, the lowest first."""
        answer = self._run("xprop", "-root", "_NET_CLIENT_LIST_STACKING").stdout
        return [int(number, 16) for number in answer.rpartition("#")[2].split(",") if number.strip()]

    def minimize(self, window):
        self._xdotool("windowminimize", str(window))

    def title(self, window):
        return self._xdotool("getwindowname", str(window)).stdout.strip()

    def press_keys(self, *keys):
        """Presses and releases each key or chord, e.g. "ctrl+s", as if on the keyboard."""
        self._xdotool("key", "--clearmodifiers", *keys)

    def type_text(self, text):
        self._xdotool("type", "--clearmodifiers", text)

    def has_window_manager(self):
        # It announces itself before it listens; the list of windows comes when it manages them.
        return "window id #" in self._run("xprop", "-root", "_NET_CLIENT_LIST").stdout

    def _xdotool(self, *arguments):
        return self._run("xdotool", *arguments)

    def _run(self, *command):
        return subprocess.run(command, env=self._environment, capture_output=True, text=True, check=False,
                              stdin=subprocess.DEVNULL, timeout=TOOL_TIMEOUT)
