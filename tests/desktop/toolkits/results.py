"""The findings of a run of the matrix about one application, written to a file for the report."""

import json
import os
import subprocess
from pathlib import Path


class Results:
    """Collects the findings while the checks run."""

    def __init__(self, description):
        self._description = description
        self._checks = {}
        self._measured = {}

    def note(self, check, holds):
        self._checks[check.removeprefix("test_")] = holds

    def measured(self, **values):
        self._measured.update(values)

    def write(self):
        """Writes them into the directory that TOVREL_TOOLKIT_REPORT names, if it is set."""
        directory = os.environ.get("TOVREL_TOOLKIT_REPORT")
        if not directory:
            return
        description = self._description
        Path(directory).mkdir(parents=True, exist_ok=True)
        document = {
            "name": description.name,
            "toolkit": description.toolkit,
            "versions": {package: _version(package) for package in (description.package, *description.more_packages)},
            "checks": self._checks,
            "measured": self._measured,
            "missing": {check: reason for check, reason in _missing(description) if reason},
            "notes": description.notes,
        }
        file = Path(directory) / f"{description.name.lower().replace(' ', '-')}.json"
        file.write_text(json.dumps(document, indent=2, ensure_ascii=False) + "\n", encoding="utf-8")


def _missing(description):
    yield "menus", description.no_menus_before
    yield "search", " ".join(known.no_shortcut for known in description.known if known.no_shortcut)
    yield "disabled", description.conditional.no_state


def _version(package):
    return subprocess.run(["dpkg-query", "-W", "-f", "${Version}", package], capture_output=True, text=True,
                          check=True).stdout
