"""Reads the accessibility bus, as the witness of the effect of a command. It shares no code with the program under
test."""

from gi.repository import GLib

from .bus_connection import BusConnection

ACCESSIBLE = "org.a11y.atspi.Accessible"
APPLICATIONS = ("org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root")
REGISTRY = ("org.a11y.atspi.Registry", "/org/a11y/atspi/registry")
NULL_OBJECT = "/org/a11y/atspi/null"  # Qt answers this for a child that it cannot name.
ON_SCREEN = 0  # The coordinate system of extents.
STATES = {"active": 1, "checked": 4, "enabled": 8, "focused": 12, "sensitive": 24, "showing": 25, "visible": 30}


class Witness:
    """One connection to the accessibility bus."""

    def __init__(self, address):
        self._bus = BusConnection(address)

    def application(self, process_id):
        """The root node of the process's accessible tree, or None while it has not registered."""
        try:
            roots = self._bus.call(*APPLICATIONS, ACCESSIBLE, "GetChildren")[0]
        except GLib.Error:
            return None
        for name, path in roots:
            if self._process_of(name) == process_id:
                return Node(self._bus, name, path)
        return None

    def hear_focus(self):
        """The news of the focus that a screen reader hears from now on."""
        return FocusNews(self._bus)

    def close(self):
        self._bus.close()

    def _process_of(self, name):
        # The bus itself answers, so an application that hangs cannot delay it.
        try:
            return self._bus.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                                  "GetConnectionUnixProcessID", GLib.Variant("(s)", (name,)))[0]
        except GLib.Error:
            return None


class FocusNews:
    """The nodes that have the focus according to their applications' signals."""

    def __init__(self, bus):
        self._bus = bus
        self._last = None
        bus.call(REGISTRY[0], REGISTRY[1], REGISTRY[0], "RegisterEvent",
                 GLib.Variant("(s)", ("object:state-changed:focused",)))
        bus.listen("org.a11y.atspi.Event.Object", "StateChanged", "focused", self._note)

    def last(self):
        """The name of the last node to get the focus; None when it is gone, or when there was none."""
        self._bus.hear()
        try:
            return self._last and self._last.name
        except GLib.Error:
            return None

    def _note(self, name, path):
        self._last = Node(self._bus, name, path)


class Node:
    """One node of an application's accessible tree; every answer is fresh."""

    def __init__(self, bus, name, path):
        self._bus = bus
        self._name = name
        self._path = path

    @property
    def identity(self):
        """A value that stays the same for a node as long as it exists."""
        return self._name, self._path

    @property
    def name(self):
        return self._bus.get(self._name, self._path, ACCESSIBLE, "Name")

    @property
    def description(self):
        return self._bus.get(self._name, self._path, ACCESSIBLE, "Description")

    @property
    def role(self):
        return self._bus.call(self._name, self._path, ACCESSIBLE, "GetRoleName")[0]

    @property
    def states(self):
        words = self._bus.call(self._name, self._path, ACCESSIBLE, "GetState")[0]
        bits = words[0] | words[1] << 32
        return {state for state, bit in STATES.items() if bits >> bit & 1}

    @property
    def interfaces(self):
        return set(self._bus.call(self._name, self._path, ACCESSIBLE, "GetInterfaces")[0])

    @property
    def toolkit(self):
        """The toolkit of an application's root node, e.g. "gtk" or "Qt"."""
        return self._bus.get(self._name, self._path, "org.a11y.atspi.Application", "ToolkitName")

    @property
    def children(self):
        return [Node(self._bus, name, path)
                for name, path in self._bus.call(self._name, self._path, ACCESSIBLE, "GetChildren")[0]
                if path != NULL_OBJECT]

    @property
    def text(self):
        return self._bus.call(self._name, self._path, "org.a11y.atspi.Text", "GetText",
                              GLib.Variant("(ii)", (0, -1)))[0]

    @property
    def extents(self):
        """Left, top, width and height on the screen, in pixels."""
        return self._bus.call(self._name, self._path, "org.a11y.atspi.Component", "GetExtents",
                              GLib.Variant("(u)", (ON_SCREEN,)))[0]

    def character_extents(self, offset):
        """Left, top, width and height of a character of its text, in the units of `extents`."""
        return self._bus.call(self._name, self._path, "org.a11y.atspi.Text", "GetCharacterExtents",
                              GLib.Variant("(iu)", (offset, ON_SCREEN)))

    def act(self):
        """Performs the node's first action: presses a button, opens a menu or closes it."""
        self._bus.call(self._name, self._path, "org.a11y.atspi.Action", "DoAction", GLib.Variant("(i)", (0,)))

    def walk(self, below=lambda node: True):
        """This node and all below it, depth first; `below` says whether a node's children are visited."""
        yield self
        if below(self):
            for child in self.children:
                yield from child.walk(below)

    def find(self, role, name=None, showing=True):
        """The first node outside the menus with this role, or None. A node that vanishes meanwhile is not
        there."""
        try:
            for node in self.walk(lambda node: node.role not in ("menu bar", "menu", "text")):
                if (node.role == role and (name is None or node.name.strip() == name)
                        and (not showing or "showing" in node.states)):
                    return node
        except GLib.Error:
            pass
        return None
