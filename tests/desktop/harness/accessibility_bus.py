"""The private accessibility bus."""

from gi.repository import GLib

from .bus_connection import BusConnection

LAUNCHER = ("org.a11y.Bus", "/org/a11y/bus")


def start_accessibility_bus(session_address):
    """Starts the accessibility bus, switches accessibility on for toolkits and returns the bus's address.
    Some toolkits look at the switch only when an application starts."""
    switch_accessibility(session_address, True)
    session = BusConnection(session_address)
    try:
        return session.call(*LAUNCHER, "org.a11y.Bus", "GetAddress")[0]
    finally:
        session.close()


def switch_accessibility(session_address, is_on):
    """Tells toolkits whether to publish their user interface."""
    session = BusConnection(session_address)
    try:
        session.set(*LAUNCHER, "org.a11y.Status", "IsEnabled", GLib.Variant("b", is_on))
    finally:
        session.close()
