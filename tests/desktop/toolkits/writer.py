"""LibreOffice Writer: a toolkit of its own over GTK 3."""

from .description import Conditional, Description, Effect, Known, Toggle

PROGRAM = "/usr/lib/libreoffice/program/soffice.bin"


def office(directory, *arguments):
    return [PROGRAM, f"-env:UserInstallation=file://{directory.parent}/profile", "--norestore", "--nologo", *arguments]


def first_command(directory):
    """Makes the profile; without one the first start ends with the request to be started again."""
    return office(directory, "--headless", "--terminate_after_init")


def command(directory):
    file = directory / "writer.txt"
    file.write_text("the quick brown fox\n", encoding="utf-8")
    return office(directory, "--writer", file)


DESCRIPTION = Description(
    name="LibreOffice Writer",
    toolkit="VCL on GTK 3",
    package="libreoffice-writer",
    more_packages=("libreoffice-gtk3",),
    environment={"SAL_USE_VCLPLUGIN": "gtk3"},
    first_command=first_command,
    command=command,
    menus=("File", "Edit", "View", "Insert", "Format", "Styles", "Table", "Form", "Tools", "Window", "Help"),
    known=(Known("select all", ("Edit", "Select All"), "⌘A"), Known("spelling", ("Tools", "Spelling..."), "F7")),
    toggle=Toggle(("View", "Status Bar"), lambda running: running.find("statusbar") is not None),
    conditional=Conditional(("Edit", "Copy"), "there is a selection",
                            allow=lambda running: running.press_keys("ctrl+a"),
                            forbid=lambda running: running.press_keys("Home")),
    effect=Effect(("Tools", "Word Count..."), "the dialog with the count",
                  lambda running: "Word Count" in running.titles()),
    dialog=("Tools", "Options..."),
    notes="""\
Two menu bars are on the accessibility bus, and a third description of the same menus is on the session bus. Items and
keys are read from the bar that the user sees, and presses go to their actions on the session bus. Both tell which
items were enabled and checked the last time a menu was open. The other bar on the accessibility bus always knows,
so states are taken from it, and nothing else: several keys in it are wrong, after a press in it the document gets no
more keys, and the next press ends the office. Titles are those of the last time as well: the item reads Undo, and
after a look into the menu it names what it would undo.""",
)
