"""The private desktop as a whole."""

import atexit
import contextlib
import shutil
import tempfile
from pathlib import Path

from .accessibility_bus import start_accessibility_bus, switch_accessibility
from .application import Application
from .display import start_display
from .interruption import raise_on_ending_signals, undisturbed
from .pictures import paint_background, take_picture
from .processes import Processes
from .requirements import require
from .session_bus import start_session_bus
from .surroundings import private_environment
from .waiting import wait_until
from .windows import Windows
from .witness import Witness


DEFAULT_SIZE = (1280, 800)


class Desktop:
    """A context manager whose desktop exists while it is entered; nothing of it remains, however it is left.

    At most one is entered at a time in a process, because leaving it ends every process that was started
    below this one meanwhile."""

    _entered = False

    def __init__(self, size=DEFAULT_SIZE, with_buses=True, window_manager=("openbox", "--sm-disable")):
        """Without `with_buses` there are windows, but no session bus and no accessibility. `window_manager` is the
        command that starts one, or None for a desktop without any."""
        self._size = size
        self._with_buses = with_buses
        self._window_manager = window_manager
        self._teardown = contextlib.ExitStack()
        self.environment = {}
        self.windows = None
        self.witness = None
        self.home = None

    def __enter__(self):
        if Desktop._entered:
            raise RuntimeError("there is a private desktop already")
        require("Xvfb", *(self._window_manager or ())[:1], "dbus-daemon", "xdotool", "xprop", "import", "display", "setpriv")
        raise_on_ending_signals()
        Desktop._entered = True
        # The desktop is closed even when an exception bypasses the test runner.
        atexit.register(self.close)
        try:
            self._set_up()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        """Ends all processes and removes all files of the desktop."""
        with undisturbed():
            self._teardown.close()
            Desktop._entered = False
            atexit.unregister(self.close)

    def launch(self, command, accessible=True):
        """Starts an application and returns it once its window is visible and, if `accessible`, its tree is on
        the accessibility bus."""
        require(command[0])
        process = self.processes.start(command, self.environment, cwd=self.home)

        def visible_window():
            self.processes.require_running(process, command[0])
            return self.windows.of_process(process.pid)

        window = wait_until(visible_window, f"a window of {command[0]}")[0]
        if accessible:
            wait_until(lambda: self._has_menu_bar(process.pid), f"{command[0]} to be accessible")
        return Application(process, window, self)

    def bring_to_front(self, window):
        """Activates the window and waits until it is in front."""
        if self._window_manager:
            self.windows.activate(window)
        else:
            self.windows.give_focus(window)
        wait_until(lambda: self.front_window() == window, "the window to come to the front")

    def front_window(self):
        """The active window according to the window manager, else the one with the input focus; None without any."""
        return self.windows.active() if self._window_manager else self.windows.focused()

    def end(self, application):
        self.processes.end(application.process)
        wait_until(lambda: application.window not in self.windows.of_process(application.pid),
                   "the application's window to go")

    def switch_accessibility(self, is_on):
        switch_accessibility(self.environment["DBUS_SESSION_BUS_ADDRESS"], is_on)

    def take_picture(self, path):
        take_picture(self.environment, path)

    def start_window_manager(self):
        self._window_manager_process = self.processes.start(list(self._window_manager), self.environment)
        wait_until(self.windows.has_window_manager, "the window manager")

    def kill_window_manager(self):
        """Kills it, so that it cannot tidy up: its announcements on the display stay there."""
        self._window_manager_process.kill()
        self._window_manager_process.wait()

    def replace_session_bus(self):
        """Ends the session bus and starts another one at the same address. Clients of the first are then on none."""
        self.processes.end(self._session_bus)
        self._session_bus = start_session_bus(self.processes, self.environment)

    def end_session_bus(self):
        self.processes.end(self._session_bus)

    def _set_up(self):
        root = Path(tempfile.mkdtemp(prefix="tovrel-desktop-"))
        self._teardown.callback(shutil.rmtree, root, ignore_errors=True)
        self.environment = private_environment(root)
        self.home = Path(self.environment["HOME"])
        logs = root / "logs"
        logs.mkdir()
        self.processes = Processes(logs)
        self._teardown.callback(self.processes.close)
        start_display(self.processes, root, self.environment, self._size)
        self.windows = Windows(self.environment)
        paint_background(self.environment, self._size)
        if self._with_buses:
            self._session_bus = start_session_bus(self.processes, self.environment)
            self.witness = Witness(start_accessibility_bus(self.environment["DBUS_SESSION_BUS_ADDRESS"]))
            self._teardown.callback(self.witness.close)
        # A key is pressed before there is a window manager, because the first key on a display makes every client read
        # the keyboard's layout again, and a window manager that does so misses keys.
        self.windows.press_keys("Shift_L")
        if self._window_manager:
            self.start_window_manager()

    def _has_menu_bar(self, process_id):
        root = self.witness.application(process_id)
        return root is not None and root.find("menu bar") is not None
