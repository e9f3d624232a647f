"""What the checks of the matrix know of one application.

Wherever something is missing, the description says why in a field whose name begins with `no_`. The checks then
prove that it is missing indeed, so that the description cannot outlive its reason."""

from collections.abc import Callable
from dataclasses import dataclass, field
from pathlib import Path

Path_ = tuple[str, ...]


@dataclass(frozen=True)
class Known:
    """A command that a search must find first."""

    query: str
    path: Path_
    # In the glyphs that are stored: Ctrl reads ⌘, Alt ⌥, Super ⌃.
    shortcut: str | None
    no_shortcut: str = ""


@dataclass(frozen=True)
class Toggle:
    """A command with a check mark. `is_on` asks the application, by another way than its menu."""

    path: Path_
    is_on: Callable[["Running"], bool]
    no_mark: str = ""


@dataclass(frozen=True)
class Conditional:
    """A command that can be chosen only at times. It cannot at first; `allow` and `forbid` change that as a
    person would, by keys."""

    path: Path_
    what: str
    allow: Callable[["Running"], None]
    forbid: Callable[["Running"], None]
    no_state: str = ""


@dataclass(frozen=True)
class Effect:
    """A command whose press shows outside the menus; `is_there` is false before and true after it."""

    path: Path_
    what: str
    is_there: Callable[["Running"], bool]


@dataclass(frozen=True)
class Description:
    name: str
    toolkit: str
    # The Debian package whose version is reported, and the others that it takes.
    package: str
    # Writes the document into the directory and returns the command line.
    command: Callable[[Path], list]
    menus: Path_
    known: Known
    toggle: Toggle
    conditional: Conditional
    effect: Effect
    more_packages: Path_ = ()
    environment: dict = field(default_factory=dict)
    # What is to be done before the menus can be read, and why.
    prepare: Callable[["Running"], None] | None = None
    no_menus_before: str = ""
    # How the application was found to be, for the report.
    notes: str = ""


class Running:
    """The application while the checks run: what descriptions may ask and do."""

    def __init__(self, application, desktop, directory):
        self.application = application
        self.desktop = desktop
        self.directory = directory

    @property
    def tree(self):
        return self.application.tree

    def find(self, role, name=None, showing=True):
        """The first such node of the application's windows outside the menus, or None."""
        return self.tree.find(role, name, showing)

    def text(self):
        return self.application.text()

    def press_keys(self, *keys):
        self.desktop.windows.press_keys(*keys)

    def type_text(self, text):
        self.desktop.windows.type_text(text)

    def titles(self):
        """Of all its visible windows."""
        windows = self.desktop.windows
        return sorted(windows.title(window) for window in windows.of_process(self.application.pid))

    def files(self):
        """What the files of the directory hold, by name."""
        return {file.name: file.read_bytes() for file in sorted(self.directory.iterdir()) if file.is_file()}
