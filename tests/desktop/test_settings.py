"""The settings window, driven by real keys: the values that each edit stores, and its effect on the palette that is
opened next."""

import os
import tempfile
from pathlib import Path

from harness.keyboard import Keyboard
from harness.palette_testing import HOT_KEY, PaletteTestCase, main
from harness.settings_window import SettingsWindow

PICTURES = Path(os.environ.get("TOVREL_TEST_PICTURES", tempfile.gettempdir()))
TEXT = "the quick brown fox\n"
EDITOR = "org.xfce.mousepad"
NEW_HOT_KEY = ("ctrl", "alt", "k")
SHORTCUT_KEY = "KeyboardShortcuts_togglePalette"


class SettingsTests(PaletteTestCase):
    def setUp(self):
        super().setUp()
        self.editor, _ = self.open_text("mousepad", TEXT)

    def start(self, **environment):
        self.start_resident(**environment)
        self.settings = SettingsWindow(self.desktop, self.resident, self.keyboard)

    def open_settings(self, tab="General"):
        self.editor.bring_to_front()
        self.settings.open(self.tovrel)
        self.settings.select_tab(tab)

    def stored(self, key):
        answer = self.tovrel.run("preferences", "read", key)
        return answer.json if answer.status == 0 else None

    def wait_for_stored(self, key, wanted):
        self.wait_until(lambda: self.stored(key) == wanted, f"{key} to be {wanted}")

    def found(self, query):
        """The rows of the palette over the editor for a query."""
        self.editor.bring_to_front()
        self.open_palette()
        self.type(query)
        rows = self.resident.rows()
        self.press("Escape")
        self.wait_until_closed()
        return rows

    def test_menu_items_are_hidden_found_by_aliases_and_marked(self):
        self.start()
        self.assertIn("Select All", self.found("select all")[0])
        self.open_settings("Menu Filter")
        self.settings.pick("Menu Item", "select all", "Edit > Select All")
        self.settings.activate("Hide Selected Item")
        row = self.settings.wait_for("Edit > Select All", "list item")
        rule, = self.stored("rules.menuBlacklistRules")
        self.assertEqual((rule["appScope"], rule["targetPath"], rule["mode"]),
                         (EDITOR, ["Edit", "Select All"], "excludeSelfAndChildren"))
        self.settings.select_tab("History")
        self.settings.pick("Menu Command", "word wrap", "Document > Word Wrap")
        self.settings.write("Aliases separated by commas", "zqx, long lines")
        self.settings.activate("Favorite", "check box")
        self.settings.activate("Save Search Rule")
        self.settings.wait_for("Document > Word Wrap", "list item")
        self.settings.close()
        self.assertFalse([row for row in self.found("select all") if "Select All" in row])
        self.assertIn("Word Wrap", self.found("zqx")[0])

        self.open_settings("Menu Filter")
        self.settings.activate("Remove Edit > Select All")
        self.settings.wait_for("No hidden menu items", "label")
        self.settings.select_tab("History")
        self.settings.activate("Clear History Records")
        self.settings.wait_for("No command usage recorded yet", "label")
        self.assertIsNone(self.stored("Tovrel.commandHistory"))
        self.settings.close()
        self.assertIn("Select All", self.found("select all")[0])

    def test_a_screen_reader_follows_the_highlighted_choice(self):
        focus = self.desktop.witness.hear_focus()
        self.start()
        self.open_settings("Menu Filter")
        self.settings.activate("Menu Item", "combo box")
        self.settings.wait_for("Search", "text")
        for choice in ("File", "File > New"):
            self.settings.press("Down")
            self.wait_until(lambda: focus.last() == choice, f"{choice} to be spoken")
        self.settings.type("copy")
        self.wait_until(lambda: focus.last() == "Search", "the field to be spoken")
        self.settings.press("Escape")

    def test_an_application_is_left_alone_and_another_chosen(self):
        self.start()
        self.open_settings("Apps")
        self.settings.wait_for("Mousepad", "label")
        self.settings.segment("Current Application", 1)
        self.wait_for_stored("rules.appBehaviors", {EDITOR: "disabled"})
        self.settings.activate("Choose Application")
        self.settings.wait_for("Search", "text")
        self.settings.type("feather")
        self.settings.wait_for("FeatherPad", "list item")
        self.settings.press("Return")
        self.wait_for_stored("rules.appBehaviors", {EDITOR: "disabled", "featherpad": "disabled"})
        self.settings.activate("Remove FeatherPad")
        self.wait_for_stored("rules.appBehaviors", {EDITOR: "disabled"})
        self.settings.close()
        self.wait_until_in_front(self.editor)
        before = self.resident.status()
        self.press(*HOT_KEY)
        self.wait_until(lambda: not self.keyboard.is_any_key_down(), "the keys to be up")
        self.assertFalse(self.resident.is_open())
        self.assertEqual(before["paletteVisible"], self.resident.status()["paletteVisible"])
        self.open_settings("Apps")
        self.settings.segment("Current Application", -1)
        self.wait_for_stored("rules.appBehaviors", {})
        self.settings.close()
        self.assertIn("Select All", self.found("select all")[0])

    def test_commands_of_each_kind_are_added_edited_and_deleted(self):
        self.start()
        self.open_settings("Commands")
        # The first form has the kind "open", and each later one keeps the kind; a number is the steps from the kind
        # before.
        fields = {"shellScript": ("Shell command or script path", -2), "appleScript": ("AppleScript text or .scpt path", 1),
                  "open": ("App, file, folder, or URL", 1), "shortcut": ("Shortcut name or URL", 1)}
        for number, (kind, (payload, steps)) in enumerate(fields.items()):
            self.settings.write("Title", f"mine {number}")
            self.settings.segment("Kind", steps)
            self.settings.write(payload, f"/tmp/{number}")
            self.settings.write("Aliases separated by commas", f"zq{number}")
            self.settings.activate("Add Command")
            self.settings.wait_for(f"mine {number}", "list item")
            stored = self.stored("customCommands")[-1]
            self.assertEqual((stored["title"], stored["kind"], stored["payload"], stored["aliases"], stored["isEnabled"]),
                             (f"mine {number}", kind, f"/tmp/{number}", [f"zq{number}"], True))
        self.settings.close()
        self.assertIn("mine 3", self.found("zq3")[0])

        self.open_settings("Commands")
        self.settings.activate("Edit mine 3")
        self.settings.wait_for("Edit Command", "panel")
        self.settings.write("Title", "yours")
        self.settings.activate("Only show in Mousepad", "check box")
        self.settings.activate("Save Changes")
        self.settings.wait_for("yours", "list item")
        self.assertEqual((self.stored("customCommands")[-1]["title"], self.stored("customCommands")[-1]["appScope"]),
                         ("yours", EDITOR))
        for name in ("mine 0", "mine 1", "mine 2", "yours"):
            self.settings.activate(f"Delete {name}")
            self.settings.wait_until_gone(name, "list item")
        self.wait_for_stored("customCommands", [])

    def is_recording(self):
        return self.settings.node("Command Palette", "text").description == "Type shortcut…"

    def wait_until_recording(self):
        self.wait_until(self.is_recording, "the field to record")

    def test_a_shortcut_of_another_program_is_asked_about_and_told_as_not_available(self):
        other = Keyboard(self.desktop.environment)
        self.assertTrue(other.take_hot_key("j"))
        self.start()
        self.open_settings()
        self.settings.focus("Command Palette", "text")
        self.wait_until_recording()
        self.press("ctrl", "shift", "j")
        self.wait_until(lambda: self.resident.has_focus() and not self.settings.has_focus(), "the question")
        alert, = [window for window in self.desktop.windows.of_process(self.resident.pid)
                  if window == self.desktop.front_window()]
        owner, = [window for window in self.desktop.windows.of_process(self.resident.pid) if window != alert]
        for place, size in ((0, 2), (1, 3)):
            middles = [geometry[place] + geometry[size] / 2
                       for geometry in map(self.desktop.windows.geometry, (alert, owner))]
            self.assertAlmostEqual(*middles, delta=30)
        self.desktop.take_picture(PICTURES / "question over the settings.png")
        # Clicks on controls behind it only bring it forward again.
        left, top, width, height = self.settings.node("History", "page tab").extents
        middle_of_the_tab = left + width // 2, top + height // 2
        self.desktop.windows.click(*middle_of_the_tab)
        self.wait_until(lambda: self.desktop.front_window() == alert, "the question to be in front")
        self.press(*HOT_KEY)
        self.press("Tab")
        self.press("Return")
        self.wait_until(lambda: self.resident.status()["shortcut"] == "Ctrl+Shift+J", "the shortcut to be used")
        self.wait_until(self.settings.has_focus, "the window to be back")
        self.assertFalse(self.is_recording())
        self.assertTrue(self.settings.node("General", "heading"))
        problem = "Another program uses this shortcut."
        self.assertEqual(self.resident.status()["shortcutProblem"], problem)
        self.wait_until(lambda: any(problem in node.name for node in self.settings.nodes("label")),
                        "the reason in the window")
        self.desktop.take_picture(PICTURES / "shortcut not available.png")
        other.close()
        self.settings.activate("Refresh")
        self.wait_until(lambda: self.resident.status()["shortcutProblem"] is None, "the shortcut to be had")
        self.desktop.windows.click(*middle_of_the_tab)
        self.settings.wait_for("History", "heading")
        self.settings.close()
        self.wait_until_in_front(self.editor)
        self.press("ctrl", "shift", "j")
        self.wait_until(self.resident.has_focus, "the palette to open by it")

    def test_the_recorder_has_the_keyboard_until_it_ends(self):
        self.start()
        self.open_settings()
        self.settings.focus("Command Palette", "text")
        self.wait_until_recording()
        self.press("alt", "F4")
        self.wait_until(lambda: self.resident.has_focus() and not self.settings.has_focus(),
                        "the question about a shortcut of the window manager")
        self.press("Escape")
        self.wait_until(self.settings.has_focus, "the window to be back")
        self.wait_until_recording()
        self.press("Tab")
        self.wait_until(lambda: self.settings.focused().name != "Command Palette", "the focus to move on")
        self.assertFalse(self.is_recording())
        self.assertTrue(self.keyboard.can_be_grabbed())

    def test_the_shortcut_is_recorded_used_and_cleared(self):
        self.start()
        self.open_settings()
        self.settings.focus("Command Palette", "text")
        self.press("ctrl", "w")
        self.wait_until(lambda: self.resident.has_focus() and not self.settings.has_focus(),
                        "the answer that the window uses it itself")
        self.press("Return")
        self.wait_until(self.settings.has_focus, "the window to be back")
        self.wait_until_recording()
        self.press(*HOT_KEY)
        self.wait_until(lambda: not self.is_recording(), "the present shortcut to be taken for the new one")
        self.press("Return")
        self.wait_until_recording()
        self.press(*NEW_HOT_KEY)
        self.wait_until(lambda: self.resident.status()["shortcut"] == "Ctrl+Alt+K", "the new shortcut")
        self.assertFalse(self.resident.is_open())
        self.settings.close()
        self.wait_until_in_front(self.editor)
        self.press(*NEW_HOT_KEY)
        self.wait_until(self.resident.has_focus, "the palette to open by the new shortcut")
        self.press("Escape")
        self.wait_until_closed()

        self.open_settings()
        self.settings.focus("Command Palette", "text")
        self.press("Delete")
        self.wait_for_stored(SHORTCUT_KEY, False)
        self.press("Escape")
        self.settings.close()
        self.resident.end()
        self.start()
        self.wait_until_in_front(self.editor)
        self.assertIsNone(self.resident.status()["shortcut"])
        self.press(*NEW_HOT_KEY)
        self.press(*HOT_KEY)
        self.tovrel.expect("toggle")
        self.wait_until(self.resident.has_focus, "the palette to open, once and for another reason")

    def test_without_accessibility_they_open_by_themselves_once(self):
        self.desktop.switch_accessibility(False)
        self.addCleanup(self.desktop.switch_accessibility, True)
        self.start(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.settings.wait_for("Needs Permission", "label")
        self.settings.activate("Accessibility")
        self.wait_until(lambda: self.resident.has_focus() and not self.settings.has_focus(),
                        "the offer to turn it on")
        self.press("Return")
        self.wait_until(self.settings.has_focus, "the settings to be back")
        self.settings.activate("Refresh")
        self.settings.wait_for("Ready", "label")
        self.settings.close()
        self.resident.end()
        self.desktop.switch_accessibility(False)
        self.start(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.tovrel.expect("toggle")
        self.wait_until(self.resident.has_focus, "the palette")
        self.assertFalse(self.settings.has_focus())

    def test_damaged_documents_read_as_defaults_and_the_next_edit_repairs_them(self):
        keys = ("rules.appBehaviors", "rules.defaultAppBehavior", "rules.menuBlacklistRules",
                "rules.menuCommandAliasRules", "customCommands", "Tovrel.commandHistory")
        for key in keys:
            self.store(key, {"what": ["is", "this"]})
        self.tovrel.expect("preferences", "write", "paletteSettings.showCheckedStatus", "--string", "perhaps")
        self.start()
        self.open_settings()
        self.assertTrue(self.settings.is_checked("Show checked status of menu items"))
        self.settings.activate("Show checked status of menu items", "check box")
        self.wait_for_stored("paletteSettings.showCheckedStatus", False)
        self.settings.activate("Notify when a custom command fails", "check box")
        self.wait_for_stored("notifications.commandFailures", False)
        self.settings.select_tab("Apps")
        self.settings.wait_for("No saved app rules", "label")
        self.settings.segment("Current Application", 2)
        self.wait_for_stored("rules.appBehaviors", {EDITOR: "auto"})
        self.settings.select_tab("Commands")
        self.settings.wait_for("No custom commands", "label")
        self.settings.activate("Add Command")
        self.wait_until(lambda: isinstance(self.stored("customCommands"), list), "a good document")
        self.settings.select_tab("History")
        self.settings.wait_for("No command usage recorded yet", "label")
        self.editor.end()
        self.settings.activate("Refresh")
        self.settings.select_tab("Menu Filter")
        self.settings.pick("Menu Item", "select all", "Edit > Select All")


if __name__ == "__main__":
    main()
