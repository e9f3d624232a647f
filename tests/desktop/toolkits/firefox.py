"""Firefox ESR: Gecko."""

import json

from .description import Conditional, Description, Effect, Known, Toggle

# No welcome pages, and no requests to servers.
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
# The attribute autohide keeps the bar hidden at first; this marks the attribute as missing.
MENU_BAR_SHOWN = {"chrome://browser/content/browser.xhtml": {"toolbar-menubar": {"autohide": "-moz-missing\n"}}}

# The name of the button beside the address after one step.
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
                            no_state="The enabled states of items are updated only when their menu is opened."),
    effect=Effect(("Tools", "Page Info"), "the window about the page",
                  lambda running: any("Page Info" in title for title in running.titles())),
    dialog=("Tools", "Page Info"),
    notes="""\
Firefox makes the items of a menu when it is first opened. From then on they can be read and pressed while the menu is
closed. The program does not open menus itself, because they would flash up before the user. A submenu that was never
opened is left out, because a press of it would do nothing. The bar can be read while Firefox hides it.

Where the desktop's panel shows menu bars (a registrar of application menus runs, and libdbusmenu-gtk3 is installed)
and `widget.gtk.global-menu.enabled` is set in about:config, Firefox gives all its menus to the panel, with every
shortcut, whether they were opened or not. The enabled and checked states are then those of the time the menu was
made. The program never starts a registrar, because applications would hide their own menu bars.""",
)
