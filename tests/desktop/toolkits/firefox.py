"""Firefox ESR: Gecko."""

import json

from .description import Conditional, Description, Effect, Known, Toggle

# Without pages of welcome and questions to servers.
PREFERENCES = {
    "app.normandy.enabled": False,
    "browser.aboutwelcome.enabled": False,
    "browser.shell.checkDefaultBrowser": False,
    "browser.startup.homepage_override.mstone": "ignore",
    "datareporting.policy.dataSubmissionEnabled": False,
    "extensions.update.enabled": False,
    "network.captive-portal-service.enabled": False,
    "network.connectivity-service.enabled": False,
    "toolkit.telemetry.reportingpolicy.firstRun": False,
}
# It is hidden at first, and kept hidden by an attribute that must be there.
MENU_BAR_SHOWN = {"chrome://browser/content/browser.xhtml": {"toolbar-menubar": {"autohide": "-moz-missing\n"}}}

# The button beside the address after one step.
ZOOMED = "110%, Reset zoom level"


def command(directory):
    return command_with(directory, PREFERENCES)


def command_with(directory, preferences):
    profile = directory.parent / "profile"
    profile.mkdir()
    (profile / "user.js").write_text("".join(f"user_pref({json.dumps(name)}, {json.dumps(value)});\n"
                                             for name, value in preferences.items()), encoding="utf-8")
    (profile / "xulstore.json").write_text(json.dumps(MENU_BAR_SHOWN), encoding="utf-8")
    page = directory / "page.html"
    page.write_text("<title>A page</title><p>the quick brown fox</p>\n", encoding="utf-8")
    return ["/usr/lib/firefox-esr/firefox-esr", "--no-remote", "--profile", profile, page]


def look_into_all(running):
    for menu in running.find("menu bar").children:
        running.look_into(menu.name)
    for menu in ("Toolbars", "Zoom"):
        running.look_into("View", menu)


def zoom(running, key, is_zoomed):
    running.press_keys(key)
    running.wait_until(lambda: (running.find("push button", ZOOMED) is not None) == is_zoomed,
                       "the page to be zoomed" if is_zoomed else "the page not to be zoomed")


DESCRIPTION = Description(
    name="Firefox ESR",
    toolkit="Gecko",
    package="firefox-esr",
    environment={"GNOME_ACCESSIBILITY": "1"},
    command=command,
    is_ready=lambda running: any("A page" in title for title in running.titles()),
    menus=("File", "Edit", "View", "History", "Bookmarks", "Tools", "Help"),
    prepare=look_into_all,
    no_menus_before="Menus are empty until they are opened for the first time; the checks open them.",
    known=(Known("page info", ("Tools", "Page Info"), "⌘I"),
           Known("full screen", ("View", "Full Screen"), None, no_shortcut="The key F11 is not published.")),
    toggle=Toggle(("View", "Toolbars", "Menu Bar"), lambda running: running.find("menu bar") is not None),
    conditional=Conditional(("View", "Zoom", "Actual Size"), "the page is zoomed",
                            allow=lambda running: zoom(running, "ctrl+plus", True),
                            forbid=lambda running: zoom(running, "ctrl+0", False),
                            refresh=lambda running: running.look_into("View", "Zoom"),
                            no_state="Whether items are enabled is brought up to date only when their menu is opened."),
    effect=Effect(("Tools", "Page Info"), "the window about the page",
                  lambda running: any("Page Info" in title for title in running.titles())),
    dialog=("Tools", "Page Info"),
    notes="""\
Items have to be made before they can be read. A menu that has been opened once stays readable, and its items can be
pressed, while it is closed; the program does not open menus itself, since they would flash up before the user. A
submenu that was never opened is left out, since a press of it would do nothing. The bar is there too while Firefox
hides it.

Where the desktop's panel shows menu bars (a registrar of application menus runs, and libdbusmenu-gtk3 is installed)
and `widget.gtk.global-menu.enabled` is set in about:config, Firefox gives all its menus to the panel, with every
shortcut, whether they were opened or not. What is enabled or checked is then told as of when the menu was made. The
program never starts a registrar, since applications would hide their own menu bars.""",
)
