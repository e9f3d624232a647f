"""A desktop with a registrar of application menus: the same commands, and nobody's menu bar changes because of us."""

from gi.repository import GLib
from harness import registrar
from harness.bus_connection import BusConnection
from harness.testing import DesktopTestCase, main


class RegistrarTestCase(DesktopTestCase):
    """Tests on a desktop whose session bus would start a registrar for any caller."""

    def setUp(self):
        super().setUp()
        self.bus = BusConnection(self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"])
        self.addCleanup(self.bus.close)
        self.assertIn(registrar.NAME, self.ask_bus("ListActivatableNames", None))

    def ask_bus(self, method, arguments):
        return self.bus.call("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", method,
                             arguments)[0]

    def registrar_runs(self):
        return self.ask_bus("NameHasOwner", GLib.Variant("(s)", (registrar.NAME,)))

    def start_registrar(self):
        registrar.start_registrar(self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"])

    def commands(self, application):
        return self.tovrel.expect("commands", "--json", "--pid", application.pid).json


class ReadingTests(RegistrarTestCase):
    def test_the_same_commands_with_it_and_without(self):
        editors = ("mousepad", "featherpad")
        without = {}
        for editor in editors:
            application = self.launch(editor)
            without[editor] = self.commands(application)
            application.end()
        self.launch("xterm", accessible=False)
        self.tovrel.run("menus")
        # Applications would hide their menu bars from then on.
        self.assertFalse(self.registrar_runs(), "reading menus has started the registrar")

        self.start_registrar()
        for editor in editors:
            with self.subTest(editor=editor):
                application = self.launch(editor, accessible=False)
                # An editor is given to the registrar some time after its window is there.
                self.wait_until(lambda: self.tovrel.run("menus", "--pid", application.pid).status == 0, "menus")
                self.assertEqual(self.commands(application), without[editor])
                has_bar = application.tree.find("menu bar") is not None
                self.assertEqual(has_bar, editor == "mousepad", "the menu bar is not as the desktop had it")


class PressingTests(RegistrarTestCase):
    def test_an_application_that_is_not_accessible(self):
        self.start_registrar()
        self.desktop.switch_accessibility(False)
        self.desktop.windows.remove_root_property("AT_SPI_BUS")
        application = self.launch("featherpad", accessible=False)
        source = ("--pid", application.pid)
        self.wait_until(lambda: self.tovrel.run("menus", *source).status == 0, "menus")
        self.assertIsNone(application.tree, "the editor is on the accessibility bus")
        path = ["Options", "Line Numbers"]
        for is_checked in (True, False):
            self.tovrel.expect("press", *source, self.best_command("line numbers", *source))
            self.wait_until(lambda: [command["isChecked"] for command in self.commands(application)
                                     if command["menuPath"] == path] == [is_checked], f"the mark to be {is_checked}")
        self.tovrel.expect("press", *source, self.best_command("about", *source))
        self.wait_until(lambda: len(self.desktop.windows.of_process(application.pid)) == 2, "the dialog")


if __name__ == "__main__":
    main()
