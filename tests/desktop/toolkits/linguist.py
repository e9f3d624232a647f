"""Qt Linguist: Qt 6."""

from .description import Conditional, Description, Effect, Known, Toggle

DOCUMENT = """<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context><name>Window</name>
<message><source>Hello</source><translation type="unfinished"></translation></message>
</context>
</TS>
"""


def command(directory):
    file = directory / "linguist.ts"
    file.write_text(DOCUMENT, encoding="utf-8")
    return ["/usr/lib/qt6/bin/linguist", file]


def translate(running):
    # Goes to the first message; its field for the translation then has the focus.
    running.press_keys("ctrl+j")
    running.type_text("x")


DESCRIPTION = Description(
    name="Qt Linguist",
    toolkit="Qt 6",
    package="linguist-qt6",
    command=command,
    menus=("File", "Edit", "Translation", "Validation", "Phrases", "View", "Help"),
    known=(Known("next unfinished", ("Translation", "Next Unfinished"), "⌘J"),),
    toggle=Toggle(("View", "Toolbars", "Help"), lambda running: running.find("tool bar", "Help") is not None),
    conditional=Conditional(("Edit", "Undo"), "a translation has been typed", allow=translate,
                            forbid=lambda running: running.press_keys("ctrl+z")),
    effect=Effect(("File", "Release"), "the compiled file is there",
                  lambda running: "linguist.qm" in running.files()),
    dialog=("Help", "About Qt Linguist"),
    notes="""\
As with Qt 5, items, shortcuts, states and check marks come over the accessibility bus if accessibility was on when
the application was started. Its list of windows has names of objects that do not exist; they are skipped.""",
)
