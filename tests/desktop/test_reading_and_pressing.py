"""The menus of real applications are read as they are, and pressing a command does what the menu does."""

from harness.menu_witness import MenuEntry, menu_entries, menu_entry
from harness.testing import DesktopTestCase, main

TEXT = "the quick brown fox\n"


def titled_entries(items):
    """Every titled item of the program's tree, in order, each menu before its items."""
    for item in items:
        if item["title"]:
            yield MenuEntry(tuple(item["menuPath"]), item["isEnabled"])
        yield from titled_entries(item["children"])


class ReadingTests(DesktopTestCase):
    def test_menus_are_what_the_application_publishes(self):
        for editor in ("mousepad", "featherpad"):
            with self.subTest(editor=editor):
                application, _ = self.open_text(editor, TEXT)
                published = menu_entries(application.tree)
                self.assertGreater(len(published), 50)
                by_process = self.tovrel.expect("menus", "--json", "--pid", application.pid).json
                self.assertEqual(list(titled_entries(by_process)), published)
                in_front = self.tovrel.expect("menus", "--json").json
                self.assertEqual(in_front, by_process)

    def test_shortcuts_and_check_marks_are_read(self):
        application, _ = self.open_text("featherpad", TEXT)
        commands = {tuple(command["menuPath"]): command
                    for command in self.tovrel.expect("commands", "--json", "--pid", application.pid).json}
        # Ctrl reads as the Command glyph, because stored and matched shortcuts are the same on every platform.
        self.assertEqual(commands["Edit", "Select All"]["shortcut"], "⌘A")
        self.assertEqual(commands["File", "Save As"]["shortcut"], "⌘⇧S")
        self.assertEqual(commands["File", "Save"]["isEnabled"], False)
        self.assertNotIn("shortcut", commands["Options", "Encoding", "Unicode", "UTF-16"])
        for path, checked in ((("Options", "Wrap Lines"), True), (("Options", "Line Numbers"), False)):
            self.assertEqual(commands[path]["isChecked"], checked, path)
            self.assertEqual("checked" in menu_entry(application.tree, *path).states, checked, path)

    def test_the_application_is_named_by_its_desktop_entry(self):
        for editor, identifier in (("mousepad", "org.xfce.mousepad"), ("featherpad", "featherpad")):
            with self.subTest(editor=editor):
                application, _ = self.open_text(editor, TEXT)
                for source in (["--pid", application.pid], ["--app", identifier], []):
                    command = self.tovrel.expect("commands", "--json", *source).json[0]
                    self.assertEqual(command["appScope"], identifier)
                    self.assertTrue(command["id"].startswith(f"menu:{identifier}:"), command["id"])


class PressingTests(DesktopTestCase):
    def test_commands_of_the_front_application_change_its_document_and_the_file(self):
        for editor in ("mousepad", "featherpad"):
            with self.subTest(editor=editor):
                application, file = self.open_text(editor, TEXT)
                text = application.tree.find("text")
                self.assertEqual(text.text.strip(), TEXT.strip())
                for query in ("select all", "to upper case" if editor == "featherpad" else "to uppercase"):
                    self.tovrel.expect("press", self.best_command(query))
                    self.wait_until(lambda: menu_entry(application.tree, "Edit", "Copy"), "the menus to answer")
                self.wait_until(lambda: text.text.strip() == TEXT.strip().upper(), "the text in capitals")
                self.assertEqual(file.read_text(encoding="utf-8"), TEXT)
                self.wait_until(lambda: "sensitive" in menu_entry(application.tree, "File", "Save").states,
                                "the document to be modified")
                self.tovrel.expect("press", self.best_command("save"))
                self.wait_until(lambda: file.read_text(encoding="utf-8") == TEXT.upper(), "the saved file")

    def test_a_named_application_obeys_behind_another_window(self):
        application, _ = self.open_text("mousepad", TEXT)
        self.assertIsNone(application.tree.find("statusbar"))
        self.launch("xterm", accessible=False).bring_to_front()
        command = self.best_command("statusbar", "--pid", application.pid)
        self.tovrel.expect("press", "--pid", application.pid, command)
        self.wait_until(lambda: application.tree.find("statusbar"), "the status bar to appear")

    def test_a_dialog_that_the_command_opens_does_not_hold_the_program_up(self):
        for editor, query, title in (("mousepad", "find and replace", "Find and Replace"),
                                     ("featherpad", "preferences", "Preferences")):
            with self.subTest(editor=editor):
                application, _ = self.open_text(editor, TEXT)
                self.tovrel.expect("press", "--pid", application.pid,
                                   self.best_command(query, "--pid", application.pid))
                dialog = self.wait_until(
                    lambda: [window for window in self.desktop.windows.of_process(application.pid)
                             if window != application.window], f"the dialog {title}")
                self.assertIn(title, self.desktop.windows.title(dialog[0]))

    def test_a_modal_dialog_keeps_presses_from_the_menus(self):
        for editor in ("mousepad", "featherpad"):
            with self.subTest(editor=editor):
                application, _ = self.open_text(editor, TEXT)
                source = ("--pid", application.pid)
                command = self.best_command("open", *source)
                self.tovrel.expect("press", *source, command)
                self.wait_until(lambda: self.desktop.windows.active() not in (None, application.window) and
                                len(self.windows_of(application)) == 2, "the dialog")
                self.assert_fails_in_one_line(self.tovrel.run("press", *source, command))
                # The application would carry out a mistaken press before it answers this.
                self.tovrel.expect("menus", *source)
                self.assertEqual(len(self.windows_of(application)), 2)
                self.desktop.windows.press_keys("Escape")
                self.wait_until(lambda: self.desktop.windows.active() == application.window, "the dialog to close")
                self.tovrel.expect("press", *source, command)
                self.wait_until(lambda: len(self.windows_of(application)) == 2, "the dialog again")

    def windows_of(self, application):
        return self.desktop.windows.of_process(application.pid)

    def test_what_cannot_be_pressed_is_refused(self):
        application, file = self.open_text("featherpad", TEXT)
        source = ("--pid", application.pid)
        self.assertNotIn("sensitive", menu_entry(application.tree, "File", "Save").states)
        for command in ("menu:featherpad:File/Save",         # disabled: nothing has changed
                        "menu:featherpad:File/No Such Item",
                        "menu:another.application:Edit/Select All",
                        "custom:11111111-2222-4333-8444-555555555555",
                        "menu:", ""):
            with self.subTest(command=command):
                self.assert_fails_in_one_line(self.tovrel.run("press", *source, command))
        self.assertEqual(application.tree.find("text").text.strip(), TEXT.strip())
        self.assertEqual(file.read_text(encoding="utf-8"), TEXT)


if __name__ == "__main__":
    main()
