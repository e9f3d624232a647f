"""Firefox on a desktop whose panel shows menu bars: all its menus are there, whether they were opened or not."""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1]))

from harness import registrar  # noqa: E402
from harness.testing import DesktopTestCase, main  # noqa: E402
from toolkits import firefox  # noqa: E402

START_TIMEOUT = 60.0


class PanelTests(DesktopTestCase):
    def setUp(self):
        super().setUp()
        self.desktop.environment.update(firefox.DESCRIPTION.environment)
        registrar.start_registrar(self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        preferences = firefox.PREFERENCES | {"widget.gtk.global-menu.enabled": True}
        self.firefox = self.launch(*firefox.command_with(self.directory, preferences), accessible=False)
        self.source = ("--pid", self.firefox.pid)
        self.wait_until(lambda: self.tovrel.run("commands", *self.source).output.strip(), "commands",
                        timeout=START_TIMEOUT)

    def test_menus_that_were_never_opened(self):
        menus = self.tovrel.expect("menus", "--json", *self.source).json
        self.assertEqual([menu["title"] for menu in menus], list(firefox.DESCRIPTION.menus))
        for menu in menus:
            self.assertTrue(menu["children"], f"{menu['title']} is empty")
        best = self.tovrel.expect("search", "--json", *self.source, "full screen").json[0][0]["command"]
        self.assertEqual((best["menuPath"], best["shortcut"]), (["View", "Full Screen"], "F11"))

        self.tovrel.expect("press", *self.source, self.best_command("page info", *self.source))
        self.wait_until(lambda: any("Page Info" in title for title in self.titles()), "the window about the page")

    def titles(self):
        return [self.desktop.windows.title(window)
                for window in self.desktop.windows.of_process(self.firefox.pid)]


if __name__ == "__main__":
    main()
