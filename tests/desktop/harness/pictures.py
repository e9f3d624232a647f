"""Pictures of the private display."""

import subprocess
from pathlib import Path

PICTURE_TIMEOUT = 30


def paint_background(environment, size):
    """Gives the root window a quiet background, so that windows stand out in pictures."""
    # The exit status is ignored: it is 1 even after painting, and only the looks depend on it.
    _run(environment, "display", "-size", f"{size[0]}x{size[1]}", "-window", "root", "gradient:#5b7c99-#2c3e50")


def take_picture(environment, path):
    """Saves the content of the display as a PNG."""
    Path(path).parent.mkdir(parents=True, exist_ok=True)
    answer = _run(environment, "import", "-window", "root", str(path))
    if answer.returncode != 0:
        raise RuntimeError(f"no picture could be taken: {answer.stderr.strip()}")


def _run(environment, *command):
    return subprocess.run(command, env=environment, capture_output=True, text=True, check=False,
                          stdin=subprocess.DEVNULL, timeout=PICTURE_TIMEOUT)
