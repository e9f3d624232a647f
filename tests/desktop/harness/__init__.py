"""A private desktop for tests and demonstrations: an X server, a window manager, a session bus and an
accessibility bus of its own, with real applications in it. Nothing of it is shared with the user's session."""

from .desktop import Desktop
from .program import Program

__all__ = ["Desktop", "Program"]
