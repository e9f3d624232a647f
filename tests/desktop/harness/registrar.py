"""The registrar of application menus that a desktop runs whose panel shows menu bars."""

from gi.repository import GLib

from .bus_connection import BusConnection
from .waiting import wait_until

NAME = "com.canonical.AppMenu.Registrar"


def start_registrar(session_address):
    """Starts it and holds it as a panel does; otherwise it ends some seconds after its start."""
    bus = BusConnection(session_address)

    def answers():
        # It owns its name a moment before it answers.
        try:
            bus.call(NAME, "/com/canonical/AppMenu/Registrar", NAME, "GetMenus")
        except GLib.Error:
            return False
        return True

    try:
        wait_until(answers, "the registrar of application menus")
        # It handles this call without an answer.
        bus.send(NAME, "/Registrar", "org.valapanel.AppMenu.Registrar", "Reference")
        wait_until(answers, "the registrar to be held")
    finally:
        bus.close()
