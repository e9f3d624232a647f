"""GTK 4, in a sample of our own."""

import sys
from pathlib import Path

from .description import Choice, Conditional, Description, Effect, Known, Toggle

RECORD = "done.txt"


def command(directory):
    file = directory / RECORD
    file.touch()
    return [sys.executable, Path(__file__).with_name("gtk4_sample.py"), file]


def last_state(running, action, initial):
    """The state of an action as the sample has written it."""
    lines = running.files()[RECORD].decode().splitlines()
    states = [line.partition(" ")[2] for line in lines if line.startswith(f"{action} ")]
    return states[-1] if states else initial


DESCRIPTION = Description(
    name="GTK 4 sample",
    toolkit="GTK 4",
    package="libgtk-4-1",
    more_packages=("gir1.2-gtk-4.0",),
    command=command,
    menus=("File", "Edit", "View"),
    known=(Known("new", ("File", "New"), "⌘N"),
           Known("change", ("Edit", "Change"), None,
                 no_shortcut="Keys that an application sets for an action (set_accels_for_action) are not published; "
                             "only those that the menu itself names are.")),
    toggle=Toggle(("View", "Wrap Lines"), lambda running: last_state(running, "wrap", "True") == "True"),
    choice=Choice((("View", "Text Size", "Small"), ("View", "Text Size", "Large")),
                  lambda running: ("View", "Text Size", last_state(running, "size", "small").capitalize())),
    conditional=Conditional(("File", "Save"), "the document has been changed",
                            allow=lambda running: running.press_keys("ctrl+e"),
                            forbid=lambda running: running.press_keys("ctrl+s")),
    effect=Effect(("File", "Export", "As Text..."), "the export in the record",
                  lambda running: "export" in running.files()[RECORD].decode().splitlines()),
    notes="""\
A sample of our own, because the applications in GTK 4 that were looked at have buttons in their title bars and no
menu bar. On the accessibility bus the menus of a bar are empty and cannot be pressed; its menu model and its
actions are on the session bus.""",
)
