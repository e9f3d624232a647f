"""Keys pressed and released one by one, many of them in one instant, as fast fingers do it."""

import contextlib
import ctypes
import os
import threading
import time

KEYSYMS = {"ctrl": 0xFFE3, "shift": 0xFFE1, "alt": 0xFFE9, "super": 0xFFEB, "Return": 0xFF0D, "Escape": 0xFF1B,
           "Tab": 0xFF09, "BackSpace": 0xFF08, "Delete": 0xFFFF, "Left": 0xFF51, "Right": 0xFF53, "Down": 0xFF54, "Up": 0xFF52, "F4": 0xFFC1, " ": 0x20, "dead_acute": 0xFE51, "dead_circumflex": 0xFE52}
_environment_lock = threading.Lock()
_errors = []


@ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)
def _note_error(_display, _event):
    """Replaces the library's own handler, which ends the process."""
    _errors.append(True)
    return 0


class Keyboard:
    """A connection of its own to the display, over which keys are played (XTEST). Keys are collected until
    `send`, and then arrive in one piece."""

    def __init__(self, environment):
        self._x11 = ctypes.CDLL("libX11.so.6")
        self._x11.XSetErrorHandler(_note_error)
        self._xtst = ctypes.CDLL("libXtst.so.6")
        display = ctypes.c_void_p
        self._x11.XOpenDisplay.restype = display
        self._x11.XOpenDisplay.argtypes = [ctypes.c_char_p]
        self._x11.XKeysymToKeycode.argtypes = [display, ctypes.c_ulong]
        for function in (self._x11.XFlush, self._x11.XCloseDisplay):
            function.argtypes = [display]
        self._x11.XQueryKeymap.argtypes = [display, ctypes.c_char_p]
        self._x11.XDefaultRootWindow.argtypes = [display]
        self._x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self._x11.XGrabKeyboard.argtypes = [display, ctypes.c_ulong, ctypes.c_int, ctypes.c_int, ctypes.c_int,
                                            ctypes.c_ulong]
        self._x11.XUngrabKeyboard.argtypes = [display, ctypes.c_ulong]
        self._x11.XGrabPointer.argtypes = [display, ctypes.c_ulong, ctypes.c_int, ctypes.c_uint, ctypes.c_int,
                                           ctypes.c_int, ctypes.c_ulong, ctypes.c_ulong, ctypes.c_ulong]
        self._x11.XUngrabPointer.argtypes = [display, ctypes.c_ulong]
        self._x11.XGrabKey.argtypes = [display, ctypes.c_int, ctypes.c_uint, ctypes.c_ulong, ctypes.c_int,
                                       ctypes.c_int, ctypes.c_int]
        self._x11.XSync.argtypes = [display, ctypes.c_int]
        self._xtst.XTestFakeKeyEvent.argtypes = [display, ctypes.c_uint, ctypes.c_int, ctypes.c_ulong]
        with _authority_of(environment):
            self._display = self._x11.XOpenDisplay(environment["DISPLAY"].encode())
        self._held_since = 0.0
        if not self._display:
            raise RuntimeError("the display cannot be opened")

    def close(self):
        self._x11.XCloseDisplay(self._display)

    def hold(self, *keys):
        self._held_since = time.monotonic()
        for key in keys:
            self._play(key, 1)
        return self

    def release(self, *keys):
        for key in keys:
            self._play(key, 0)
        return self

    def chord(self, *keys):
        """Presses all keys in this order, and releases them in the opposite one."""
        return self.hold(*keys).release(*reversed(keys))

    def type(self, text):
        for character in text:
            self.chord(character)
        return self

    def send(self):
        self._x11.XFlush(self._display)

    def seconds_held(self):
        """The seconds since keys were last pressed."""
        return time.monotonic() - self._held_since

    def is_any_key_down(self):
        keys = ctypes.create_string_buffer(32)
        self._x11.XQueryKeymap(self._display, keys)
        return any(keys.raw)

    def can_be_grabbed(self):
        """Whether nobody else holds the keyboard."""
        asynchronous = 1
        answer = self._x11.XGrabKeyboard(self._display, self._x11.XDefaultRootWindow(self._display), 0,
                                         asynchronous, asynchronous, 0)
        self._x11.XUngrabKeyboard(self._display, 0)
        self._x11.XSync(self._display, 0)
        return answer == 0

    def can_pointer_be_grabbed(self):
        """Whether nobody holds the pointer, as a window manager does while it moves a window."""
        asynchronous = 1
        answer = self._x11.XGrabPointer(self._display, self._x11.XDefaultRootWindow(self._display), 0, 0,
                                        asynchronous, asynchronous, 0, 0, 0)
        self._x11.XUngrabPointer(self._display, 0)
        self._x11.XSync(self._display, 0)
        return answer == 0

    def take_hot_key(self, key):
        """Grabs Control, Shift and the key until this is closed, as another program's hot key would. False when
        another program has them."""
        modifiers, asynchronous = 0x5, 1
        _errors.clear()
        self._x11.XGrabKey(self._display, self._code(key), modifiers,
                           self._x11.XDefaultRootWindow(self._display), 0, asynchronous, asynchronous)
        self._x11.XSync(self._display, 0)
        return not _errors

    def _play(self, key, is_press):
        self._xtst.XTestFakeKeyEvent(self._display, self._code(key), is_press, 0)

    def _code(self, key):
        return self._x11.XKeysymToKeycode(self._display, KEYSYMS.get(key) or ord(key))


@contextlib.contextmanager
def _authority_of(environment):
    """Sets this process's environment, in which the library looks for the display's cookie."""
    with _environment_lock:
        before = os.environ.get("XAUTHORITY")
        os.environ["XAUTHORITY"] = environment.get("XAUTHORITY", "")
        try:
            yield
        finally:
            if before is None:
                del os.environ["XAUTHORITY"]
            else:
                os.environ["XAUTHORITY"] = before
