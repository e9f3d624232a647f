"""The private X server and its root window."""

import os
import secrets
import struct
from pathlib import Path

from .waiting import wait_until

FAMILY_WILD = 0xFFFF


def start_display(processes, root, environment, size):
    """Starts an X server that only this environment may connect to and sets DISPLAY and XAUTHORITY in it. The
    server chooses a free display number itself."""
    authority = Path(root) / "Xauthority"
    authority.write_bytes(_authority_record(secrets.token_bytes(16)))
    authority.chmod(0o600)
    reader, writer = os.pipe()
    try:
        server = processes.start(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{size[0]}x{size[1]}x24", "-nolisten", "tcp",
             "-noreset", "-auth", str(authority)],
            environment, death_signal="TERM", pass_fds=[writer])
    finally:
        os.close(writer)
    with open(reader, "rb", buffering=0) as answer:
        os.set_blocking(reader, False)
        number = bytearray()

        def announced():
            processes.require_running(server, "the X server")
            number.extend(answer.read() or b"")
            return number.endswith(b"\n")

        wait_until(announced, "the X server to say its display number")
    environment["DISPLAY"] = f":{number.decode().strip()}"
    environment["XAUTHORITY"] = str(authority)


def _authority_record(cookie):
    """An authority file with one entry that is valid for any display number."""
    fields = (b"", b"", b"MIT-MAGIC-COOKIE-1", cookie)
    return struct.pack(">H", FAMILY_WILD) + b"".join(struct.pack(">H", len(field)) + field for field in fields)
