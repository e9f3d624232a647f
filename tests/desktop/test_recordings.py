"""A recording answers as the application does, and no file, however bad, does harm."""

import json

from harness.testing import DesktopTestCase, main

QUERIES = ("save", "sa", "", "uppercase", "zzz", "fs", "⌘s")


class RecordingTests(DesktopTestCase):
    def test_a_recording_answers_every_query_as_the_application_does(self):
        for editor, name in (("mousepad", "Mousepad"), ("featherpad", "FeatherPad")):
            with self.subTest(editor=editor):
                application, _ = self.open_text(editor, "one\n")
                source = ("--pid", application.pid)
                recording = self.directory / f"{editor}.json"
                recording.write_text(self.tovrel.expect("record", *source).output, encoding="utf-8")
                document = json.loads(recording.read_text(encoding="utf-8"))
                self.assertEqual(document["processIdentifier"], application.pid)
                self.assertEqual(document["localizedName"], name)
                for verb in (["menus"], ["commands"], ["search", "--", *QUERIES]):
                    live = self.tovrel.expect(verb[0], "--json", *source, *verb[1:]).json
                    self.assertEqual(
                        self.tovrel.expect(verb[0], "--json", "--recording", recording, *verb[1:]).json, live)
                    self.assertTrue(live)
                # A recording from a file needs no desktop.
                bare = {"PATH": self.desktop.environment["PATH"], "HOME": str(self.directory)}
                self.assertEqual(
                    self.tovrel.expect("search", "--json", "--recording", recording, "--", *QUERIES,
                                       environment=bare).json, live)

    def test_titles_are_ordered_alike_in_every_locale(self):
        recording = self.directory / "recording.json"
        recording.write_text(json.dumps({"AXMenuBar": {"AXChildren": [{"AXTitle": "Edit", "AXChildren": [
            {"AXTitle": title} for title in ("Zap edit", "archive edit", "Édition", "Bold edit")]}]}}),
                             encoding="utf-8")
        bare = {"PATH": self.desktop.environment["PATH"], "HOME": str(self.directory)}
        posix = ({**bare, "LC_ALL": name} for name in ("C", "POSIX", "C.UTF-8"))
        for locale in (self.desktop.environment, bare, *posix):
            ranked = self.tovrel.expect("search", "--json", "--recording", recording, "edit",
                                        environment=locale).json[0]
            with self.subTest(locale=locale.get("LC_ALL", locale.get("LANG"))):
                self.assertEqual([result["command"]["title"] for result in ranked],
                                 ["archive edit", "Bold edit", "Édition", "Zap edit"])

    def test_a_recording_cannot_be_pressed_without_its_application(self):
        recording = self.directory / "recording.json"
        recording.write_text(json.dumps({"AXMenuBar": {"AXChildren": [
            {"AXTitle": "File", "AXChildren": [{"AXChildren": [{"AXTitle": "Save"}]}]}]}}), encoding="utf-8")
        command = self.best_command("save", "--recording", recording)
        self.assert_fails_in_one_line(self.tovrel.run("press", "--recording", recording, command))

    def test_malformed_recordings_are_refused_in_one_line(self):
        deep = '{"AXChildren":[' * 100_000
        cases = {
            "empty": b"",
            "not JSON": b"AXMenuBar",
            "cut off": b'{"AXMenuBar": {"AXChildren": [{"AXTitle": "File"',
            "not UTF-8": b'{"localizedName": "\xff\xfe", "AXMenuBar": {"AXChildren": []}}',
            "no object": b"[1, 2, 3]",
            "hostile nesting": f'{{"AXMenuBar":{deep}'.encode(),
            "bytes": bytes(range(256)) * 64,
        }
        for name, content in cases.items():
            with self.subTest(case=name):
                recording = self.directory / "bad.json"
                recording.write_bytes(content)
                for verb in (["menus"], ["commands"], ["search", "save"]):
                    self.assert_fails_in_one_line(self.tovrel.run(*verb, "--recording", recording))
        for name, path in (("missing", self.directory / "none.json"), ("directory", self.directory)):
            with self.subTest(case=name):
                self.assert_fails_in_one_line(self.tovrel.run("menus", "--recording", path))

    def test_values_of_another_type_count_as_missing(self):
        recording = self.directory / "odd.json"
        recording.write_text(json.dumps({
            "bundleIdentifier": 7,
            "AXMenuBar": {"AXChildren": [
                {"AXTitle": "File", "AXChildren": [
                    {"AXTitle": "Save", "AXEnabled": "no", "AXMenuItemCmdChar": 5, "AXMenuItemCmdModifiers": []},
                    "not an element", {"AXTitle": ["Open"]}, {"AXTitle": "Close", "AXEnabled": False}]}]},
        }), encoding="utf-8")
        commands = self.tovrel.expect("commands", "--json", "--recording", recording).json
        self.assertEqual([(command["id"], command["isEnabled"]) for command in commands],
                         [("menu:global:File/Save", True), ("menu:global:File/Close", False)])


if __name__ == "__main__":
    main()
