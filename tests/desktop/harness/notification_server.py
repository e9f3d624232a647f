"""A server of desktop notifications that shows nothing and remembers everything."""

from .bus_connection import BusConnection

NAME = "org.freedesktop.Notifications"
PATH = "/org/freedesktop/Notifications"
INTERFACE = f"""
<node><interface name="{NAME}">
  <method name="GetCapabilities"><arg type="as" direction="out"/></method>
  <method name="Notify">
    <arg type="s" direction="in"/><arg type="u" direction="in"/><arg type="s" direction="in"/>
    <arg type="s" direction="in"/><arg type="s" direction="in"/><arg type="as" direction="in"/>
    <arg type="a{{sv}}" direction="in"/><arg type="i" direction="in"/><arg type="u" direction="out"/>
  </method>
</interface></node>
"""


class NotificationServer:
    """A server on a session bus, until it is closed."""

    def __init__(self, session_address, reads_markup):
        self._capabilities = ["body", *["body-markup"] * reads_markup]
        self._bus = BusConnection(session_address)
        self._shown = []
        self._bus.serve(NAME, PATH, INTERFACE, {"GetCapabilities": lambda: ("(as)", (self._capabilities,)), "Notify": self._notify})

    def close(self):
        self._bus.close()

    def shown(self):
        """The bodies of all notifications, the oldest first."""
        self._bus.hear()
        return self._shown

    def _notify(self, _application, _replaces, _icon, _title, body, *_):
        self._shown.append(body)
        return "(u)", (len(self._shown),)
