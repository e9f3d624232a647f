"""GTK 3 with a menu bar of the application's own, in a sample of our own."""

import sys
from pathlib import Path

from .description import Conditional, Description, Effect, Known, Toggle

TEXT = "the quick brown fox\n"


def command(directory):
    file = directory / "gtk3.txt"
    file.write_text(TEXT, encoding="utf-8")
    return [sys.executable, Path(__file__).with_name("gtk3_sample.py"), file]


DESCRIPTION = Description(
    name="GTK 3 sample",
    toolkit="GTK 3",
    package="libgtk-3-0",
    more_packages=("gir1.2-gtk-3.0",),
    command=command,
    menus=("File", "Edit", "View"),
    known=(Known("open", ("File", "Open..."), "⌘O"),),
    toggle=Toggle(("View", "Status Bar"), lambda running: running.find("statusbar") is not None),
    conditional=Conditional(("File", "Save"), "the document has been changed",
                            allow=lambda running: running.type_text("x"),
                            forbid=lambda running: running.press_keys("ctrl+s")),
    effect=Effect(("Edit", "Upper Case"), "the text in capitals", lambda running: running.text() == TEXT.upper()),
    dialog=("File", "Open..."),
    notes="""\
A sample of our own that publishes its menus on the accessibility bus only. Its dialogs run in a main loop of their
own, in which it answers nothing. A connection to the application itself was tried and is twice as fast, but an
application that has taken one can hang for good when a dialog closes that a press has opened.""",
)
