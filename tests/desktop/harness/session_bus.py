"""The private session bus."""

import socket as sockets
from pathlib import Path

from .waiting import wait_until


def start_session_bus(processes, environment):
    """Starts a session bus, sets DBUS_SESSION_BUS_ADDRESS and returns the bus's process. Programs that the bus
    starts on demand get the present environment, so the display must be there already."""
    socket = Path(environment["XDG_RUNTIME_DIR"]) / "bus"
    daemon = processes.start(
        ["dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address=unix:path={socket}"], environment)

    def listening():
        processes.require_running(daemon, "the session bus")
        return accepts_connections(socket)

    wait_until(listening, "the session bus to listen")
    environment["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={socket}"
    return daemon


def accepts_connections(socket):
    """Whether the bus listens; the socket's file is there a moment before."""
    with sockets.socket(sockets.AF_UNIX) as attempt:
        try:
            attempt.connect(str(socket))
        except (FileNotFoundError, ConnectionRefusedError):
            return False
        return True
