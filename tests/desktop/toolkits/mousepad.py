"""Mousepad: GTK 3, with menus made from a menu model."""

from .description import Choice, Conditional, Description, Effect, Known, Toggle

TEXT = "\tthe quick brown fox\n"


def command(directory):
    file = directory / "mousepad.txt"
    file.write_text(TEXT, encoding="utf-8")
    return ["mousepad", file]


def tab_size(running):
    """The tab size, from the distance of the first two characters; every character is as wide as a column."""
    text = running.find("text")
    (tab, *_), (letter, _, column, _) = text.character_extents(0), text.character_extents(1)
    return ("Document", "Tab Size", str(round((letter - tab) / column)))


DESCRIPTION = Description(
    name="Mousepad",
    toolkit="GTK 3",
    package="mousepad",
    command=command,
    menus=("File", "Edit", "Search", "View", "Document", "Help"),
    known=(Known("select all", ("Edit", "Select All"), "⌘A"),),
    toggle=Toggle(("View", "Statusbar"), lambda running: running.find("statusbar") is not None),
    choice=Choice((("Document", "Tab Size", "2"), ("Document", "Tab Size", "8")), tab_size),
    conditional=Conditional(("Edit", "Cut"), "there is a selection",
                            allow=lambda running: running.press_keys("ctrl+a"),
                            forbid=lambda running: running.press_keys("ctrl+Home")),
    effect=Effect(("Edit", "Duplicate Line / Selection"), "the line is there twice",
                  lambda running: running.text().count(TEXT) == 2),
    dialog=("File", "Open..."),
    notes="""\
Titles, states, check marks and presses go by the menu model and the actions that its window publishes on the
session bus; shortcuts, which are not in the model, come over the accessibility bus, where the items have no check
marks. Cut, Copy, Paste and Select All are disabled while the window has no keyboard focus, so menus are
read before the palette takes it.""",
)
