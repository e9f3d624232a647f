"""LibreOffice Writer: a toolkit of its own over GTK 3."""

from .description import Conditional, Description, Effect, Known, Toggle

PROGRAM = "/usr/lib/libreoffice/program/soffice.bin"

STALE = "The menu that the user sees tells of changes only when it is opened."


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
    toggle=Toggle(("View", "Status Bar"), lambda running: running.find("statusbar") is not None,
                  refresh=lambda running: running.look_into("View"), no_mark=STALE),
    conditional=Conditional(("Edit", "Copy"), "there is a selection",
                            allow=lambda running: running.press_keys("ctrl+a"),
                            forbid=lambda running: running.press_keys("Home"),
                            refresh=lambda running: running.look_into("Edit"), no_state=STALE),
    effect=Effect(("Tools", "Word Count..."), "the dialog with the count",
                  lambda running: "Word Count" in running.titles()),
    notes="""Two menu bars are on the accessibility bus. The one that the user sees is read. The other knows at any time what is
enabled and checked, and was tried: several keys in it are wrong, and after an item has been pressed there the document gets
no more keys, and the next press ends the office.""",
)
