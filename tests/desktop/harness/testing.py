"""The common part of the desktop tests."""

import os
import re
import tempfile
import unittest
from pathlib import Path

from .desktop import Desktop
from .program import Program
from .waiting import wait_until


class DesktopTestCase(unittest.TestCase):
    """Tests on one private desktop; every test starts with no application, no window and no preferences."""

    with_buses = True
    window_manager = ("openbox", "--sm-disable")
    size = (1280, 800)

    @classmethod
    def setUpClass(cls):
        cls.desktop = cls.enterClassContext(Desktop(cls.size, cls.with_buses, cls.window_manager))
        cls.tovrel = Program(cls.desktop.environment)

    def setUp(self):
        self.directory = Path(self.enterContext(tempfile.TemporaryDirectory(dir=self.desktop.home)))
        self.desktop.environment["TOVREL_PREFERENCES"] = str(self.directory / "preferences.db")

    def launch(self, *command, **options):
        """Starts an application that ends with the test."""
        application = self.desktop.launch([str(word) for word in command], **options)
        self.addCleanup(application.end)
        return application

    def open_text(self, editor, text):
        """Starts an editor with `text` in a file; returns the application and the file."""
        file = self.directory / f"{editor}.txt"
        file.write_text(text, encoding="utf-8")
        application = self.launch(editor, file)
        application.bring_to_front()
        return application, file

    def wait_until(self, condition, what, **options):
        return wait_until(condition, what, **options)

    def best_command(self, query, *source):
        """The id of the command that the program ranks first."""
        ranked = self.tovrel.expect("search", "--json", *source, query).json[0]
        self.assertTrue(ranked, f"nothing was found for {query!r}")
        return ranked[0]["command"]["id"]

    def assert_fails_in_one_line(self, answer, mentioning="", status=1):
        """Checks that the program refused: the exit status, no standard output, one line on standard error."""
        self.assertEqual(answer.status, status, answer)
        self.assertEqual(answer.output, "")
        self.assertRegex(answer.errors, r"\Atovrel: [^\n]+\n\Z")
        self.assertRegex(answer.errors, re.compile(mentioning, re.IGNORECASE))


class PicturingResult(unittest.TextTestResult):
    """Takes a picture of the desktop when a test fails."""

    def addError(self, test, err):
        super().addError(test, err)
        self._take_picture(test)

    def addFailure(self, test, err):
        super().addFailure(test, err)
        self._take_picture(test)

    def _take_picture(self, test):
        desktop = getattr(test, "desktop", None)
        if desktop is None:
            return
        picture = Path(os.environ.get("TOVREL_TEST_PICTURES", tempfile.gettempdir())) / f"{test.id()}.png"
        try:
            desktop.take_picture(picture)
            self.stream.writeln(f"picture of the desktop: {picture}")
        except (OSError, RuntimeError) as error:
            self.stream.writeln(f"no picture of the desktop: {error}")


def main():
    """Runs the tests of the calling file."""
    unittest.main(testRunner=unittest.TextTestRunner(resultclass=PicturingResult, verbosity=2))
