"""Mousepad: GTK 3, with menus made from a menu model."""

from .description import Conditional, Description, Effect, Known, Toggle

TEXT = "the quick brown fox\n"


def command(directory):
    file = directory / "mousepad.txt"
    file.write_text(TEXT, encoding="utf-8")
    return ["mousepad", file]


DESCRIPTION = Description(
    name="Mousepad",
    toolkit="GTK 3",
    package="mousepad",
    command=command,
    menus=("File", "Edit", "Search", "View", "Document", "Help"),
    known=(Known("select all", ("Edit", "Select All"), "⌘A"),),
    toggle=Toggle(("View", "Statusbar"), lambda running: running.find("statusbar") is not None,
                  no_mark="The accessible items of menus made from a menu model never carry a check mark."),
    conditional=Conditional(("Edit", "Cut"), "there is a selection",
                            allow=lambda running: running.press_keys("ctrl+a"),
                            forbid=lambda running: running.press_keys("ctrl+Home")),
    effect=Effect(("Edit", "Duplicate Line / Selection"), "the line is there twice",
                  lambda running: running.text().count(TEXT) == 2),
)
