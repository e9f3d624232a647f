"""The description of one application for the checks of the matrix.

Wherever something is missing, the description says why in a field whose name begins with `no_`. The checks then
prove that it is missing indeed, so that the description cannot outlive its reason."""

from collections.abc import Callable
from dataclasses import dataclass, field
from pathlib import Path

from harness.waiting import wait_until

Path_ = tuple[str, ...]


@dataclass(frozen=True)
class Known:
    """A command that a search must find first."""

    query: str
    path: Path_
    # The shortcut in the stored glyphs: Ctrl reads ⌘, Alt ⌥, Super ⌃.
    shortcut: str | None
    no_shortcut: str = ""


@dataclass(frozen=True)
class Toggle:
    """A command with a check mark. `is_on` asks the application, by another way than its menu."""

    path: Path_
    is_on: Callable[["Running"], bool]


@dataclass(frozen=True)
class Choice:
    """Commands of which one is marked; `chosen` asks the application for its path, by another way than its menu."""

    paths: tuple[Path_, ...]
    chosen: Callable[["Running"], Path_]


@dataclass(frozen=True)
class Conditional:
    """A command that can be chosen only at times, and not at first. `allow` and `forbid` change that by keys, as a
    person would."""

    path: Path_
    what: str
    allow: Callable[["Running"], None]
    forbid: Callable[["Running"], None]
    # Makes an application report a change that it does not report at once; the reason is in `no_state`.
    refresh: Callable[["Running"], None] | None = None
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
    # The Debian package whose version is reported, and the further packages that are needed.
    package: str
    # Writes the document into the directory and returns the command line.
    command: Callable[[Path], list]
    menus: Path_
    known: tuple[Known, ...]
    toggle: Toggle
    conditional: Conditional
    effect: Effect
    # A command that opens a dialog, which Escape closes.
    dialog: Path_ | None = None
    # A command that is gone, rather than disabled, when it was read and then forbidden.
    stale: Conditional | None = None
    # Present if the application has a choice whose change can be seen outside its menu.
    choice: Choice | None = None
    more_packages: Path_ = ()
    # A command that is run to its end first, in the same directory.
    first_command: Callable[[Path], list] | None = None
    environment: dict = field(default_factory=dict)
    # Whether it has read the document.
    is_ready: Callable[["Running"], bool] = lambda running: True
    # The step that is needed before the menus can be read, and the reason.
    prepare: Callable[["Running"], None] | None = None
    no_menus_before: str = ""
    # The findings about the application, for the report.
    notes: str = ""


class Running:
    """The application while the checks run, with the questions and actions that descriptions may use."""

    def __init__(self, application, desktop, directory):
        self.application = application
        self.desktop = desktop
        self.directory = directory

    @property
    def tree(self):
        return self.application.tree

    def find(self, role, name=None, showing=True):
        """The first such node in the application's windows, outside the menus, or None."""
        return self.tree.find(role, name, showing)

    def text(self):
        return self.application.text()

    def wait_until(self, condition, what):
        return wait_until(condition, what)

    def look_into(self, *titles):
        """Opens the menu of the bar, then the menus below it, and closes them, as a person does to look."""
        menu = self.find("menu bar")
        before = self.windows()
        for number, title in enumerate(titles, 1):
            menu = next(child for child in menu.children if child.name == title and child.role == "menu")
            menu.act()
            self.wait_until(lambda count=number: len(self.windows()) >= len(before) + count,
                            f"the menu {title} to open")
        for number in range(len(titles) - 1, -1, -1):
            self.press_keys("Escape")
            self.wait_until(lambda count=number: len(self.windows()) <= len(before) + count, "the menu to close")

    def press_keys(self, *keys):
        self.desktop.windows.press_keys(*keys)

    def type_text(self, text):
        self.desktop.windows.type_text(text)

    def titles(self):
        """The titles of all its visible windows."""
        return sorted(self.desktop.windows.title(window) for window in self.windows())

    def files(self):
        """The contents of the files of the directory, by name."""
        return {file.name: file.read_bytes() for file in sorted(self.directory.iterdir()) if file.is_file()}

    def windows(self):
        """The visible windows."""
        return self.desktop.windows.of_process(self.application.pid)
