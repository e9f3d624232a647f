"""FeatherPad: Qt 5."""

from .description import Conditional, Description, Effect, Known, Toggle

TEXT = "\tpear\n"


def command(directory):
    file = directory / "featherpad.txt"
    file.write_text(TEXT, encoding="utf-8")
    return ["featherpad", file]


def has_line_numbers(running):
    """Numbers stand left of the text and move it."""
    return running.find("text").character_extents(0)[0] > running.find("text").extents[0] + 10


DESCRIPTION = Description(
    name="FeatherPad",
    toolkit="Qt 5",
    package="featherpad",
    command=command,
    menus=("File", "Edit", "Options", "Search", "Help"),
    known=(Known("save as", ("File", "Save As"), "⌘⇧S"),),
    toggle=Toggle(("Options", "Line Numbers"), has_line_numbers),
    conditional=Conditional(("File", "Save"), "the document has been changed",
                            allow=lambda running: running.type_text("x"),
                            forbid=lambda running: running.press_keys("ctrl+s")),
    effect=Effect(("Edit", "Text Tabs to Spaces"), "spaces in place of the tab",
                  lambda running: "\t" not in running.text() and running.text().endswith("  pear\n")),
    dialog=("Options", "Preferences"),
    notes="""\
Items, shortcuts, states and check marks come over the accessibility bus. An item that can be checked looks like any
other while it is unchecked. Accessibility must have been switched on when the application was started.""",
)
