"""GIMP: GTK 2."""

from .description import Choice, Conditional, Description, Effect, Known, Toggle

MODE = ("Image", "Mode")


def command(directory):
    file = directory / "gimp.ppm"
    file.write_bytes(b"P6 4 4 255\n" + bytes(range(48)))
    # Each start has settings of its own: after an unexpected end GIMP would offer to recover images.
    return ["env", f"GIMP2_DIRECTORY={directory.parent}/gimp", "gimp-2.10", "--no-splash", "--new-instance", file]


def mode(running):
    """The mode that the title of the image window names."""
    return (*MODE, "Grayscale" if any("Grayscale" in title for title in running.titles()) else "RGB")


select = Conditional(("Select", "None"), "there is a selection",
                     allow=lambda running: running.press_keys("ctrl+a"),
                     forbid=lambda running: running.press_keys("ctrl+shift+a"))

DESCRIPTION = Description(
    name="GIMP",
    toolkit="GTK 2",
    package="gimp",
    more_packages=("libgtk2.0-0", "libatk-adaptor"),
    environment={"GTK_MODULES": "gail:atk-bridge"},
    command=command,
    is_ready=lambda running: any("(imported)" in title for title in running.titles()),
    menus=("File", "Edit", "Select", "View", "Image", "Layer", "Colors", "Tools", "Filters", "Windows", "Help"),
    known=(Known("duplicate", ("Image", "Duplicate"), "⌘D"),),
    toggle=Toggle(("View", "Show Statusbar"), lambda running: running.find("statusbar") is not None),
    choice=Choice(((*MODE, "RGB"), (*MODE, "Grayscale")), mode),
    conditional=select,
    # The name of the item contains the action to undo.
    stale=Conditional(("Edit", "Undo Select All"), "that was done last", select.allow, select.forbid),
    effect=Effect(("Image", "Duplicate"), "a window with the copy",
                  lambda running: any("Untitled" in title for title in running.titles())),
    dialog=("Edit", "Preferences"),
    notes="""\
Items, shortcuts, states and check marks come over the accessibility bus, if the variable GTK_MODULES has
`gail:atk-bridge`, which the package libatk-adaptor sets at login. Items of the same name in different
sections of one menu have the same path: View › Color Management › Black Point Compensation is there twice, and only the
first can be pressed.""",
)
