"""The application that is meant when none is named, and the answer when there is none."""

import tempfile

from harness.testing import DesktopTestCase, main


class FrontApplicationTests(DesktopTestCase):
    def front_identifier(self):
        return self.tovrel.expect("commands", "--json").json[0]["appScope"]

    def test_it_follows_the_window_that_the_user_brings_to_the_front(self):
        gtk, _ = self.open_text("mousepad", "one\n")
        qt, _ = self.open_text("featherpad", "two\n")
        self.assertEqual(self.front_identifier(), "featherpad")
        gtk.bring_to_front()
        self.assertEqual(self.front_identifier(), "org.xfce.mousepad")
        self.desktop.windows.press_keys("alt+Tab")
        self.wait_until(lambda: self.desktop.windows.active() == qt.window, "the other editor in front")
        self.assertEqual(self.front_identifier(), "featherpad")
        qt.end()
        self.wait_until(lambda: self.desktop.windows.active() == gtk.window, "the first editor in front")
        self.assertEqual(self.front_identifier(), "org.xfce.mousepad")

    def test_an_application_without_a_menu_bar_in_front_is_said_plainly(self):
        editor, _ = self.open_text("mousepad", "one\n")
        self.launch("xterm", accessible=False).bring_to_front()
        for verb in (["menus"], ["commands"], ["record"], ["press", "menu:org.xfce.mousepad:File/Save"]):
            with self.subTest(verb=verb[0]):
                self.assert_fails_in_one_line(self.tovrel.run(*verb), mentioning="xterm")
        found = self.tovrel.run("search", "--json", "save")
        self.assertEqual((found.status, found.json), (1, [[]]))
        # The editor behind it can still be reached by name.
        self.tovrel.expect("menus", "--pid", editor.pid)
        self.tovrel.expect("menus", "--app", "org.xfce.mousepad")

    def test_no_window_at_all(self):
        for verb in (["menus"], ["search", "save"], ["record"]):
            with self.subTest(verb=verb[0]):
                self.assert_fails_in_one_line(self.tovrel.run(*verb), mentioning="front|window")

    def test_a_process_or_application_that_is_not_there(self):
        ended = self.launch("xterm", accessible=False)
        ended.end()
        for source in (["--pid", ended.pid], ["--app", "org.example.Nothing"]):
            with self.subTest(source=source):
                self.assert_fails_in_one_line(self.tovrel.run("menus", *source))

    def test_no_display(self):
        editor, _ = self.open_text("mousepad", "one\n")
        without = {name: value for name, value in self.desktop.environment.items() if name != "DISPLAY"}
        unreachable = {**without, "DISPLAY": ":987654"}
        wayland = {**without, "WAYLAND_DISPLAY": "wayland-0"}
        for environment, said in ((without, "no X display"), (unreachable, "no X display"), (wayland, "Wayland")):
            for arguments in (["menus"], []):
                self.assert_fails_in_one_line(self.tovrel.run(*arguments, environment=environment),
                                              mentioning=said)
            # A process that is named needs no display to be read.
            self.tovrel.expect("menus", "--pid", editor.pid, environment=environment)


class NoBusTests(DesktopTestCase):
    with_buses = False

    def test_no_session_bus(self):
        terminal = self.launch("xterm", accessible=False)
        terminal.bring_to_front()
        without = self.desktop.environment
        self.assertNotIn("DBUS_SESSION_BUS_ADDRESS", without)
        unreachable = {**without, "DBUS_SESSION_BUS_ADDRESS": f"unix:path={tempfile.gettempdir()}/no-such-bus"}
        for environment in (without, unreachable):
            for source in ([], ["--pid", terminal.pid]):
                self.assert_fails_in_one_line(self.tovrel.run("menus", *source, environment=environment),
                                              mentioning="bus|accessibility")


if __name__ == "__main__":
    main()
