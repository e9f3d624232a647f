"""The user's own commands while they run: nothing waits for them, each failure is reported, and each starts in the
environment that the program itself was started in."""

import os
import signal
from pathlib import Path

from harness.notification_server import NotificationServer
from harness.palette_testing import PaletteTestCase, main
from harness.process_tree import descendants, is_alive

SIGNALS = "grep -E '^Sig(Blk|Ign)' /proc/self/status"
# The variables that a shell sets by itself.
OF_THE_SHELL = {"_", "PWD", "OLDPWD", "SHLVL", "LOGNAME"}


class CustomCommandTests(PaletteTestCase):
    def setUp(self):
        super().setUp()
        self.editor, _ = self.open_text("mousepad", "")

    def have_commands(self, *commands):
        """Stores commands, each given by a word to find it by, a kind and a payload."""
        self.store("customCommands", [{"id": word, "title": f"<b>&{word}", "kind": kind, "payload": payload, "aliases": [],
                                       "isEnabled": True} for word, kind, payload in commands])

    def choose(self, word):
        """Runs the command from the palette and answers the question."""
        used = self.history().get(f"custom:{word}", 0)
        self.open_palette()
        self.type(word)
        palette = self.resident.window
        self.press("Return")
        self.wait_until_asked(palette)
        self.press("Return")
        self.wait_until_closed()
        self.assertEqual(self.history()[f"custom:{word}"], used + 1)
        self.wait_until_in_front(self.editor)

    def running(self, *words):
        """The processes of the resident program with that command line."""
        return [pid for pid in descendants(self.resident.pid) if self.command_line(pid) == list(words)]

    def wait_until_all_have_ended(self):
        """Waits until the resident program has taken note of the end of every process it started."""
        children = Path(f"/proc/{self.resident.pid}/task/{self.resident.pid}/children")
        self.wait_until(lambda: not children.read_text(encoding="utf-8"), "all commands to have ended")
        self.resident.status()  # The answer comes after the ends were handled.

    @staticmethod
    def command_line(pid):
        try:
            with open(f"/proc/{pid}/cmdline", encoding="utf-8") as file:
                return file.read().split("\0")[:-1]
        except (FileNotFoundError, ProcessLookupError):
            return None

    def test_commands_that_run_on_hold_up_nothing(self):
        self.have_commands(("wait", "shellScript", "sleep 300"))
        for end in ("quit", signal.SIGTERM):
            self.start_resident()
            self.choose("wait")
            self.choose("wait")
            self.wait_until(lambda: len(self.running("sleep", "300")) == 2, "both to run")
            waiting = self.running("sleep", "300")
            self.open_palette()
            self.type("select all")
            self.assertIn("Select All", self.resident.rows()[0])
            self.press("Escape")
            self.wait_until_closed()
            self.wait_until_in_front(self.editor)
            self.keyboard.type("hello").send()
            self.wait_until(lambda: self.editor.text().endswith("hello"), "the keys to arrive in the editor")
            self.resident.status()
            if end == "quit":
                self.tovrel.expect("quit")
            else:
                self.resident.process.send_signal(end)
            self.assertEqual(self.resident.process.wait(timeout=20), 0)
            for pid in waiting:
                self.assertEqual(self.command_line(pid), ["sleep", "300"], "it outlives the program")
                os.kill(pid, signal.SIGTERM)
                self.wait_until(lambda pid=pid: not is_alive(pid), "the command to end")

    def test_failures_are_told_by_notifications(self):
        self.have_commands(("exits", "shellScript", "exit 3"), ("crashes", "shellScript", "kill -SEGV $$"),
                           ("succeeds", "shellScript", "true"), ("missing", "appleScript", "beep"))
        self.start_resident()
        self.choose("crashes")
        self.wait_until_all_have_ended()  # There is no notification server yet, so nobody is told.
        for reads_markup, title in ((False, "<b>&"), (True, "&lt;b&gt;&amp;")):
            server = NotificationServer(self.desktop.environment["DBUS_SESSION_BUS_ADDRESS"], reads_markup)
            expected = []
            for word, how in (("exits", "It ended with status 3."), ("succeeds", None),
                              ("crashes", "It was ended by signal 11."),
                              ("missing", "/usr/bin/osascript could not be started: No such file or directory.")):
                self.choose(word)
                expected += [f"{title}{word}\n{how}"] if how else []
                self.wait_until(lambda: len(server.shown()) >= len(expected), f"the failure of {word}")
                self.assertEqual(server.shown(), expected)
            server.close()
        self.assertEqual(self.resident.errors, "")

    def test_commands_start_as_the_program_was_started(self):
        programs = self.directory / "programs"
        programs.mkdir()
        opener = programs / "xdg-open"
        opener.write_text(f"#!/bin/sh\nenv -0 >'{self.directory}/opened' && {SIGNALS} >'{self.directory}/opened.signals'\n",
                          encoding="utf-8")
        opener.chmod(0o755)
        self.have_commands(("run", "shellScript", f"env -0 >'{self.directory}/run' && {SIGNALS} "
                                                  f">'{self.directory}/run.signals'"),
                           ("link", "shortcut", "https://example.org/"))
        self.start_resident(PATH=f"{programs}:{os.environ['PATH']}", TOVREL_TEST="a b\nc")
        for word, file in (("run", "run"), ("link", "opened")):
            self.choose(word)
            signals = self.directory / f"{file}.signals"
            self.wait_until(lambda: signals.exists() and signals.read_text(encoding="utf-8").count("\n") == 2,
                            "the command to have run")
            for line in signals.read_text(encoding="utf-8").splitlines():
                self.assertEqual(int(line.split()[1], 16), 0, line)
            given = dict(line.split("=", 1) for line in
                         (self.directory / file).read_text(encoding="utf-8").split("\0")[:-1])
            for name in OF_THE_SHELL:
                given.pop(name, None)
            self.assertEqual(given, {name: value for name, value in self.resident.environment.items()
                                     if name not in OF_THE_SHELL})


if __name__ == "__main__":
    main()
