"""Preferences written on the command line are on disk when the command returns, and the search honours them."""

import json
import os
import random
import resource
import signal
import subprocess

from harness.program import Answer
from harness.testing import DesktopTestCase, main
from harness.waiting import wait_until

SCOPE = "org.xfce.mousepad"
CUSTOM = {"id": "0B5F3C52-8C3B-4E0B-9D1E-3D1B9D0A7A11", "title": "Tidy the Desk", "kind": "shellScript",
          "payload": "true", "appScope": SCOPE, "aliases": ["cleanup"], "isEnabled": True}


class PreferencesInSearchTests(DesktopTestCase):
    def write(self, key, value):
        self.tovrel.expect("preferences", "write", key, "--json", json.dumps(value))

    def found(self, query, *source):
        return [(result["command"]["id"], result["score"])
                for result in self.tovrel.expect("search", "--json", *source, query).json[0]]

    def test_custom_commands_rules_aliases_and_history_change_what_is_found(self):
        editor, _ = self.open_text("mousepad", "one\n")
        source = ("--pid", editor.pid)
        save, save_as = f"menu:{SCOPE}:File/Save All", f"menu:{SCOPE}:File/Save As..."
        plain = self.found("save all", *source)
        self.assertEqual(plain, [(save, 900)])

        self.write("customCommands", [CUSTOM, {**CUSTOM, "id": "OTHER", "appScope": "org.example.Other"}])
        for query in ("tidy the desk", "cleanup"):
            self.assertEqual([command for command, _ in self.found(query, *source)], [f"custom:{CUSTOM['id']}"])

        self.write("rules.menuCommandAliasRules",
                   [{"appScope": SCOPE, "targetPath": ["File", "Save All"], "aliases": ["keep"]}])
        self.assertEqual(self.found("keep", *source)[0], (save, 1000))

        self.write("Tovrel.commandHistory", {save: {"usageCount": 3, "lastUsedAt": 700000000.5,
                                                    "isFavorite": True}})
        self.assertEqual(self.found("save all", *source), [(save, 900 + 120 + 3 * 8 + 25)])

        self.write("rules.menuBlacklistRules",
                   [{"id": "A", "appScope": SCOPE, "targetPath": ["File", "Save All"], "mode": "excludeSelf"},
                    {"id": "B", "targetPath": ["Edit"], "mode": "excludeChildren"},
                    {"id": "C", "appScope": "org.example.Other", "targetPath": ["File"],
                     "mode": "excludeChildren"}])
        commands = self.tovrel.expect("commands", "--json", *source).json
        identifiers = [command["id"] for command in commands]
        self.assertNotIn(save, identifiers)
        self.assertIn(save_as, identifiers)
        self.assertFalse([path for path in identifiers if path.startswith(f"menu:{SCOPE}:Edit/")])

        for key in ("customCommands", "rules.menuCommandAliasRules", "Tovrel.commandHistory",
                    "rules.menuBlacklistRules"):
            self.tovrel.expect("preferences", "delete", key)
        self.assertEqual(self.found("save all", *source), plain)

    def test_another_database_is_named_by_option(self):
        other = self.directory / "other.db"
        self.tovrel.expect("preferences", "write", "greeting", "--string", "héllo", "--preferences", other)
        self.assertEqual(self.tovrel.expect("preferences", "read", "greeting", "--preferences", other).output,
                         "héllo\n")
        self.assert_fails_in_one_line(self.tovrel.run("preferences", "read", "greeting"), mentioning="greeting")

    def test_what_was_written_survives_a_kill_at_any_moment(self):
        # In each round a shell counts up under one key until it is killed, with the writer in whatever state. The
        # last confirmed number, or the one being written, must be stored.
        choice = random.Random(20240229)
        counter = '''i=$1; while "$0" preferences write count --json "$i" && echo "$i"; do i=$((i+1)); done'''
        confirmed = 0
        for _ in range(12):
            with subprocess.Popen(["bash", "-c", counter, self.tovrel.path, str(confirmed + 1)],
                                  env=self.desktop.environment, stdout=subprocess.PIPE, text=True,
                                  start_new_session=True) as writer:
                for _ in range(choice.randint(1, 6)):
                    confirmed = int(writer.stdout.readline())
                os.killpg(writer.pid, signal.SIGKILL)
                confirmed = max([confirmed, *map(int, writer.stdout.read().split())])
            stored = int(self.tovrel.expect("preferences", "read", "count").output)
            self.assertIn(stored, (confirmed, confirmed + 1))
            confirmed = stored

    def test_a_limit_of_file_size_fails_the_write_alone(self):
        def limit():
            resource.setrlimit(resource.RLIMIT_FSIZE, (50_000, 50_000))

        self.tovrel.expect("preferences", "write", "kept", "--string", "kept")
        with subprocess.Popen([self.tovrel.path, "preferences", "write", "kept", "--string", "x" * 100_000],
                              env=self.desktop.environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              text=True, preexec_fn=limit) as writer:
            output, errors = writer.communicate(timeout=20)
        self.assert_fails_in_one_line(Answer(writer.returncode, output, errors), mentioning="cannot write")
        self.assertEqual(self.tovrel.expect("preferences", "read", "kept").output, "kept\n")

    def test_two_writers_lose_nothing_of_each_other(self):
        writer = 'for i in $(seq 20); do "$0" preferences write "$1.$i" --json "$i" || exit 1; done'
        writers = [subprocess.Popen(["bash", "-c", writer, self.tovrel.path, name],
                                    env=self.desktop.environment) for name in ("left", "right")]
        for process in writers:
            wait_until(lambda process=process: process.poll() is not None, "a writer to end", timeout=60)
            self.assertEqual(process.returncode, 0)
        exported = self.tovrel.expect("preferences", "export").json
        self.assertEqual(set(exported), {f"{name}.{i}" for name in ("left", "right") for i in range(1, 21)})


if __name__ == "__main__":
    main()
