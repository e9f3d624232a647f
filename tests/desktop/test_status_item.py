"""The status item in the status bar of a desktop, and what it tells of a shortcut that another program has."""

from harness.keyboard import Keyboard
from harness.notification_server import NotificationServer
from harness.palette_testing import HOT_KEY, PaletteTestCase, main
from harness.settings_window import SettingsWindow
from harness.status_notifier_host import StatusNotifierHost

HEADLINE = "The shortcut Ctrl+Shift+P is not available"
PROBLEM = "Another program uses this shortcut."


class StatusItemTests(PaletteTestCase):
    def setUp(self):
        super().setUp()
        self.session = self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"]
        self.editor, _ = self.open_text("mousepad", "text\n")

    def start_in_status_bar(self):
        self.bar = StatusNotifierHost(self.session)
        self.addCleanup(self.bar.close)
        self.start_resident()
        self.wait_until(self.bar.item, "the status item")

    def test_its_menu_opens_the_palette_and_the_settings_and_ends_the_program(self):
        self.start_in_status_bar()
        self.assertEqual(list(self.bar.menu()), ["Open Palette", "Settings…", "Quit Tovrel"])
        self.assertEqual(self.bar.tool_tip(), "Tovrel")
        self.bar.click("Open Palette")
        self.wait_until(self.resident.has_focus, "the palette to open")
        self.press("Escape")
        self.wait_until_closed()
        self.bar.click("Settings…")
        settings = SettingsWindow(self.desktop, self.resident, self.keyboard)
        self.wait_until(settings.has_focus, "the settings")
        settings.close()
        self.bar.click("Quit Tovrel")
        self.assertEqual(self.resident.process.wait(timeout=20), 0)
        self.assertEqual(self.resident.errors, "")

    def test_a_lost_shortcut_is_told_once_and_by_the_tool_tip_while_it_lasts(self):
        server = NotificationServer(self.session, reads_markup=False)
        self.addCleanup(server.close)
        other = Keyboard(self.desktop.environment)
        self.assertTrue(other.take_hot_key("p"))
        self.start_in_status_bar()
        self.wait_until(server.shown, "the notification")
        self.assertEqual(server.shown(), [PROBLEM])
        self.wait_until(lambda: self.bar.tool_tip() == f"Tovrel\n{HEADLINE}\n{PROBLEM}", "the tool tip")
        other.close()
        settings = SettingsWindow(self.desktop, self.resident, self.keyboard)
        settings.open(self.tovrel)
        settings.activate("Refresh")
        self.wait_until(lambda: self.bar.tool_tip() == "Tovrel", "the tool tip to be as usual")
        settings.close()
        self.wait_until_in_front(self.editor)
        self.press(*HOT_KEY)
        self.wait_until(self.resident.has_focus, "the palette to open")
        self.assertEqual(server.shown(), [PROBLEM])


if __name__ == "__main__":
    main()
