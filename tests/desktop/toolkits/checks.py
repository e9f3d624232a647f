"""The checks that run over every description of the matrix."""

import statistics
import subprocess
import time

from harness.testing import DesktopTestCase
from harness.waiting import TimedOut

from .description import Running
from .results import Results

# The number of runs whose median time is reported, and never asserted.
TIMED_RUNS = 9
START_TIMEOUT = 60.0
# Far above the time the program takes to see that an application is gone.
NO_HANG = 5.0
# The time within which applications announce a change, if they do so by themselves.
NOT_TOLD = 2.0


class ToolkitChecks:
    """Mixed into a DesktopTestCase whose `description` is that of the application."""

    description = None

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.desktop.environment.update(cls.description.environment)
        cls.results = Results(cls.description)
        cls.addClassCleanup(cls.results.write)

    def setUp(self):
        super().setUp()
        files = self.directory / "documents"
        files.mkdir()
        if self.description.first_command:
            subprocess.run(self.description.first_command(files), env=self.desktop.environment, capture_output=True,
                           timeout=START_TIMEOUT, check=True)
        command = self.description.command(files)
        application = self.launch(*command, accessible=False)
        self.running = Running(application, self.desktop, files)
        self.wait_until(lambda: application.tree and application.tree.find("menu bar", showing=False),
                        "a menu bar on the accessibility bus", timeout=START_TIMEOUT)
        application.bring_to_front()
        self.wait_until(lambda: self.description.is_ready(self.running), "the document", timeout=START_TIMEOUT)
        self.source = ("--pid", application.pid)

    def run(self, result=None):
        """Records for the report whether the check holds."""
        troubles = len(result.failures) + len(result.errors)
        skips = len(result.skipped)
        super().run(result)
        if len(result.skipped) == skips:
            self.results.note(self._testMethodName, len(result.failures) + len(result.errors) == troubles)
        return result

    def test_menus(self):
        """Every menu of the bar is found, with items in it."""
        description = self.description
        items = self._menus()
        self.assertEqual([item["title"] for item in items], list(description.menus))
        if description.prepare:
            self.assertFalse(self._commands(), "the program finds commands that the description says it cannot")
            self._prepare()
            items = self._menus()
        for item in items:
            self.assertTrue(item["children"], f"the menu {item['title']} is empty")
        self.results.measured(items=sum(1 for _ in _all(items)), start_ms=self._median_time("--version"),
                              menus_ms=self._median_time("menus", "--json", *self.source))

    def test_search(self):
        self._prepare()
        for known in self.description.known:
            best = self.tovrel.expect("search", "--json", *self.source, known.query).json[0][0]["command"]
            self.assertEqual(tuple(best["menuPath"]), known.path)
            self.assertEqual(best.get("shortcut"), known.shortcut)

    def test_check_mark(self):
        self._prepare()
        toggle = self.description.toggle
        was_on = toggle.is_on(self.running)
        self.wait_until(lambda: self._is_marked(toggle.path) == was_on, f"the mark to be {was_on} at first")
        for is_on in (not was_on, was_on):
            self._press(toggle.path)
            self.wait_until(lambda: toggle.is_on(self.running) == is_on, f"{toggle.path} to be {is_on}")
            self.wait_until(lambda: self._is_marked(toggle.path) == is_on, f"the mark to be {is_on}")
        # Some applications take no more keys when their menus are pressed in the wrong way.
        self.description.conditional.allow(self.running)
        self._wait_for_state(self.description.conditional, True)

    def test_choice(self):
        choice = self.description.choice
        if not choice:
            self.skipTest("no choice is described")
        self._prepare()
        for path in (*choice.paths[::-1], choice.paths[-1]):
            self._press(path)
            self.wait_until(lambda: choice.chosen(self.running) == path, f"{path} to be chosen")
            self.wait_until(lambda: [other for other in choice.paths if self._is_marked(other)] == [path],
                            f"{path} alone to be marked")

    def test_disabled(self):
        self._prepare()
        conditional = self.description.conditional
        self.assertFalse(self._can_press(conditional.path))
        for change, expected in ((conditional.allow, True), (conditional.forbid, False)):
            change(self.running)
            if conditional.refresh:
                with self.assertRaises(TimedOut, msg="it is told without more ado, other than described"):
                    self.wait_until(lambda: self._can_press(conditional.path) == expected, "it", timeout=NOT_TOLD)
            self._wait_for_state(conditional, expected)

    def test_press(self):
        self._prepare()
        effect = self.description.effect
        self.assertFalse(effect.is_there(self.running))
        self._press(effect.path)
        self.wait_until(lambda: effect.is_there(self.running), effect.what)

    def test_dialog(self):
        """The dialog that a command opens can be closed, and the application goes on: some applications hang when
        they are asked in the wrong way while a dialog is open."""
        if not self.description.dialog:
            self.skipTest("no dialog is described")
        self._prepare()
        before = self.running.windows()
        self._press(self.description.dialog)
        opened = self.wait_until(lambda: set(self.running.windows()) - set(before), "the dialog")
        self.desktop.bring_to_front(max(opened))
        # Some dialogs take no keys at first.
        def closed():
            self.running.press_keys("Escape")
            return self.running.windows() == before

        self.wait_until(closed, "the dialog to close")
        self.running.application.bring_to_front()
        self.description.conditional.allow(self.running)
        self._wait_for_state(self.description.conditional, True)

    def test_stale(self):
        """A command that was read as enabled is refused once it is disabled or renamed, and nothing happens."""
        self._prepare()
        conditional = self.description.stale or self.description.conditional
        conditional.allow(self.running)
        self._wait_for_state(conditional, True)
        command = self._command(conditional.path)["id"]
        conditional.forbid(self.running)
        self._wait_for_state(conditional, False)
        before = self._what_it_shows()
        self.assert_fails_in_one_line(self.tovrel.run("press", *self.source, command))
        # The application would carry out a mistaken press before it answers this.
        self._menus()
        self.assertEqual(self._what_it_shows(), before)

    def test_killed(self):
        self._prepare()
        command = self._command(self.description.effect.path)["id"]
        self.running.application.kill()
        self.running.application.process.wait()
        begun = time.monotonic()
        answer = self.tovrel.run("press", *self.source, command, deadline=NO_HANG)
        took = time.monotonic() - begun
        self.assert_fails_in_one_line(answer)
        self.results.measured(killed_ms=round(1000 * took))

    def _prepare(self):
        if self.description.prepare:
            self.description.prepare(self.running)

    def _menus(self):
        return self.tovrel.expect("menus", "--json", *self.source).json

    def _commands(self):
        return self.tovrel.expect("commands", "--json", *self.source).json

    def _command(self, path):
        """The program's command with the path, or None."""
        return next((command for command in self._commands() if tuple(command["menuPath"]) == path), None)

    def _is_marked(self, path):
        return self._command(path)["isChecked"]

    def _wait_for_state(self, conditional, can_be_pressed):
        if conditional.refresh:
            conditional.refresh(self.running)
        self.wait_until(lambda: self._can_press(conditional.path) == can_be_pressed,
                        f"{conditional.path} to be {'enabled' if can_be_pressed else 'disabled'}")

    def _can_press(self, path):
        command = self._command(path)
        return command is not None and command["isEnabled"]

    def _press(self, path):
        command = self._command(path)
        self.assertIsNotNone(command, f"there is no command {path}")
        self.tovrel.expect("press", *self.source, command["id"])

    def _what_it_shows(self):
        return self.running.titles(), self.running.text(), self.running.files()

    def _median_time(self, *arguments):
        """The median time of a run of the program from its start to its end, in milliseconds."""
        def one_run():
            begun = time.monotonic()
            self.tovrel.expect(*arguments)
            return 1000 * (time.monotonic() - begun)

        return round(statistics.median(one_run() for _ in range(TIMED_RUNS)))


def test_case(description):
    """The checks of one application as a test case."""
    return type(description.name.replace(" ", ""), (ToolkitChecks, DesktopTestCase),
                {"description": description, "__module__": "toolkits"})


def _all(items):
    for item in items:
        yield item
        yield from _all(item["children"])
