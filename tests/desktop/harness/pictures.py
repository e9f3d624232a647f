"""Pictures of the private display."""

import subprocess
from pathlib import Path

PICTURE_TIMEOUT = 30


def paint_background(environment, size):
    """Gives the root window a quiet background, so that windows stand out in pictures."""
    # Its exit status is 1 even when it has painted; nothing but the looks depends on it.
    _run(environment, "display", "-size", f"{size[0]}x{size[1]}", "-window", "root", "gradient:#5b7c99-#2c3e50")


def take_picture(environment, path):
    """Saves what the display shows as a PNG."""
    Path(path).parent.mkdir(parents=True, exist_ok=True)
    answer = _run(environment, "import", "-window", "root", str(path))
    if answer.returncode != 0:
        raise RuntimeError(f"no picture could be taken: {answer.stderr.strip()}")


def _run(environment, *command):
    return subprocess.run(command, env=environment, capture_output=True, text=True, check=False,
                          stdin=subprocess.DEVNULL, timeout=PICTURE_TIMEOUT)
