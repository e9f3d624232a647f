"""The resident program on a private desktop, and its palette as a screen reader sees it."""

import subprocess
from pathlib import Path

from .program import Program
from .waiting import wait_until

HOT_KEY = ("ctrl", "shift", "p")


class Resident:
    """The program started without a verb. Its output goes to `output` and `errors`, or all of it to a device if
    one is named."""

    def __init__(self, desktop, directory, environment=None, program=None, prints_to=None):
        self._desktop = desktop
        self.environment = desktop.environment | (environment or {})
        self._program = Program(self.environment, program)
        self._output = Path(prints_to or directory / "resident-output.txt")
        self._errors = Path(prints_to or directory / "resident-errors.txt")
        with open(self._output, "wb") as output, open(self._errors, "wb") as errors:
            self.process = subprocess.Popen([self._program.path], env=self.environment,
                                            stdin=subprocess.DEVNULL, stdout=output, stderr=errors)
        wait_until(self.is_ready, "the resident program to answer")

    @property
    def pid(self):
        return self.process.pid

    @property
    def output(self):
        return self._output.read_text(encoding="utf-8")

    @property
    def errors(self):
        return self._errors.read_text(encoding="utf-8") if self._errors.is_file() else ""

    def is_ready(self):
        if self.process.poll() is not None:
            raise AssertionError(f"the resident program ended with {self.process.returncode}: {self.errors}")
        return self._program.run("status", "--json").status == 0

    def status(self):
        return self._program.expect("status", "--json").json

    def is_open(self):
        return self.status()["paletteVisible"]

    def end(self):
        """Ends it if it still runs, and returns its exit status."""
        if self.process.poll() is None:
            self.process.terminate()
        return self.process.wait(timeout=20)

    @property
    def window(self):
        """The palette's window while it is shown, else None."""
        shown = self._desktop.windows.of_process(self.pid)
        return shown[0] if shown else None

    def has_focus(self):
        """Whether one of its windows is in front and has noticed; until then it still asks to be."""
        if self._desktop.front_window() not in self._desktop.windows.of_process(self.pid):
            return False
        return any("active" in frame.states for frame in self._frames())

    def query(self):
        """The content of the search field."""
        field = self._find("text")
        return field.text if field else None

    def rows(self):
        """The names of the rows on the screen: title, menus, shortcut."""
        return [row.name for row in self._rows()]

    def checked_rows(self):
        """The rows on the screen that have a check mark."""
        return [row.name for row in self._rows() if "checked" in row.states]

    def _rows(self):
        """The rows in the order shown; each tells its own position, as in "2 of 7"."""
        results = self._find("list")
        shown = [row for row in results.children if "showing" in row.states] if results else []
        return sorted(shown, key=lambda row: int(row.description.split()[0]))

    def _frames(self):
        tree = self._desktop.witness.application(self.pid)
        return tree.children if tree else []

    def _find(self, role):
        tree = self._desktop.witness.application(self.pid)
        return tree.find(role) if tree else None
