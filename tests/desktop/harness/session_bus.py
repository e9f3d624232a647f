"""The private session bus."""

from pathlib import Path

from .waiting import wait_until


def start_session_bus(processes, environment):
    """Starts a session bus and sets DBUS_SESSION_BUS_ADDRESS. What the bus starts on demand gets the
    environment as it is now, so the display must be there already."""
    socket = Path(environment["XDG_RUNTIME_DIR"]) / "bus"
    daemon = processes.start(
        ["dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address=unix:path={socket}"], environment)

    def listening():
        processes.require_running(daemon, "the session bus")
        return socket.exists()

    wait_until(listening, "the session bus to listen")
    environment["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={socket}"
