"""A D-Bus connection whose calls all have a deadline."""

from gi.repository import Gio, GLib

CALL_TIMEOUT_MS = 5000


class BusConnection:
    """A connection to one bus. It caches nothing and makes no calls of its own."""

    def __init__(self, address):
        flags = Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT | Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION
        self._connection = Gio.DBusConnection.new_for_address_sync(address, flags, None, None)

    def call(self, name, path, interface, method, arguments=None):
        """The values that the call returns, as a tuple."""
        return self._connection.call_sync(name, path, interface, method, arguments, None,
                                          Gio.DBusCallFlags.NONE, CALL_TIMEOUT_MS, None).unpack()

    def send(self, name, path, interface, method):
        """Makes a call without arguments and does not wait for the answer. It arrives before later calls."""
        self._connection.call(name, path, interface, method, None, None, Gio.DBusCallFlags.NONE, CALL_TIMEOUT_MS,
                              None, None)

    def listen(self, interface, member, first_argument, heard):
        """Has `hear` call `heard` with the sender and the path of each such signal, whoever sends it."""
        self._connection.signal_subscribe(None, interface, member, None, first_argument, Gio.DBusSignalFlags.NONE,
                                          lambda _connection, sender, path, *_: heard(sender, path))

    def serve(self, name, path, interface, methods, properties=None):
        """Takes the name, and has `hear`, or a loop that runs, answer calls to an object with that interface, given
        as XML. Each of `methods` takes a call's arguments and returns the answer's type and value, or None for an
        empty answer; each of `properties` is its type and value."""
        def answer(_connection, _sender, _path, _interface, method, arguments, invocation):
            values = methods[method](*arguments.unpack())
            invocation.return_value(GLib.Variant(*values) if values else None)

        def property_value(_connection, _sender, _path, _interface, prop):
            return GLib.Variant(*properties[prop])

        self._connection.register_object(path, Gio.DBusNodeInfo.new_for_xml(interface).interfaces[0], answer,
                                         property_value)
        self.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                  GLib.Variant("(su)", (name, 0)))

    @staticmethod
    def hear():
        """Hands out the signals and calls that have arrived."""
        while GLib.MainContext.default().iteration(False):
            pass

    def get(self, name, path, interface, prop):
        return self.call(name, path, "org.freedesktop.DBus.Properties", "Get",
                         GLib.Variant("(ss)", (interface, prop)))[0]

    def set(self, name, path, interface, prop, value):
        self.call(name, path, "org.freedesktop.DBus.Properties", "Set",
                  GLib.Variant("(ssv)", (interface, prop, value)))

    def close(self):
        # The bus may have ended meanwhile.
        if not self._connection.is_closed():
            self._connection.close_sync(None)
