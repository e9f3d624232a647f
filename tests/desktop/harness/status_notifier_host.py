"""A status bar that shows nothing: the watcher of status notifier items that a desktop's panel runs, with a host."""

import threading

from gi.repository import GLib

from .bus_connection import BusConnection

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
MENU = "com.canonical.dbusmenu"
INTERFACE = f"""
<node><interface name="{WATCHER}">
  <method name="RegisterStatusNotifierItem"><arg type="s" direction="in"/></method>
  <method name="RegisterStatusNotifierHost"><arg type="s" direction="in"/></method>
  <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
  <property name="RegisteredStatusNotifierItems" type="as" access="read"/>
  <property name="ProtocolVersion" type="i" access="read"/>
</interface></node>
"""


class StatusNotifierHost:
    """One on a session bus, until it is closed. It answers on a thread of its own: applications wait for it while
    they start, and the test for them."""

    def __init__(self, session_address):
        self._items = []
        self._context = GLib.MainContext.new()
        self._loop = GLib.MainLoop.new(self._context, False)
        self._bus = BusConnection(session_address)
        serves = threading.Event()
        self._thread = threading.Thread(target=self._serve, args=(session_address, serves), daemon=True)
        self._thread.start()
        serves.wait()

    def close(self):
        self._loop.quit()
        self._thread.join()
        self._bus.close()

    def item(self):
        """The bus name of the one item that is registered, or None."""
        return self._items[0] if len(self._items) == 1 else None

    def tool_tip(self):
        """What the item shows while the pointer rests on it. Qt gives all of the text as the title."""
        return self._bus.get(self.item(), "/StatusNotifierItem", ITEM, "ToolTip")[2]

    def menu(self):
        """The titles of the entries in the item's menu, with the number each is known by."""
        _, (_, _, entries) = self._bus.call(self.item(), self._menu_path(), MENU, "GetLayout",
                                            GLib.Variant("(iias)", (0, -1, [])))
        return {properties["label"].replace("_", ""): number for number, properties, _ in entries
                if "label" in properties}

    def click(self, title):
        """Clicks on the entry, as a panel does that shows the menu."""
        menu = self.menu()
        self._bus.call(self.item(), self._menu_path(), MENU, "Event",
                       GLib.Variant("(isvu)", (menu[title], "clicked", GLib.Variant("i", 0), 0)))

    def _menu_path(self):
        return self._bus.get(self.item(), "/StatusNotifierItem", ITEM, "Menu")

    def _serve(self, session_address, serves):
        self._context.push_thread_default()
        bus = BusConnection(session_address)
        bus.serve(WATCHER, f"/{WATCHER.rpartition('.')[2]}", INTERFACE,
                  {"RegisterStatusNotifierItem": self._register, "RegisterStatusNotifierHost": lambda _name: None},
                  {"IsStatusNotifierHostRegistered": ("b", True), "RegisteredStatusNotifierItems": ("as", []),
                   "ProtocolVersion": ("i", 0)})
        serves.set()
        self._loop.run()
        bus.close()
        self._context.pop_thread_default()

    def _register(self, name):
        self._items.append(name)
