"""LibreOffice Writer: a toolkit of its own over GTK 3."""

from .description import Conditional, Description, Effect, Known, Toggle

PROGRAM = "/usr/lib/libreoffice/program/soffice.bin"


def office(directory, *arguments):
    return [PROGRAM, f"-env:UserInstallation=file://{directory.parent}/profile", "--norestore", "--nologo", *arguments]


def first_command(directory):
    """Makes the profile; otherwise the first start ends with the request to be started again."""
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
Two menu bars are on the accessibility bus, and a third description of the same menus on the session bus. Items and
keys are those that the user sees, presses go to their actions on the session bus. Both tell what is enabled and
checked as of the last time a menu was open; the other bar on the accessibility bus knows it at any time, so that
states are taken from there. It is not used for more: several keys in it are wrong, and after a press there the
document gets no more keys, and the next press ends the office. Titles are as of the last time too: the item reads
Undo, and after a look into the menu with what it would undo.""",
)
