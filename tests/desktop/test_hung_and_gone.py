"""Applications that hang or vanish cost a bounded time and a clear message, and never hang this program."""

import subprocess

from harness.testing import DesktopTestCase, main

# Far above the program's own budget for one application and far below the quarter of a minute that the
# platform's client library waits for the same application.
NO_HANG = 8.0


class HungApplicationTests(DesktopTestCase):
    def test_a_stopped_application_is_said_to_hang_and_read_again_when_it_goes_on(self):
        for editor in ("mousepad", "featherpad"):
            with self.subTest(editor=editor):
                application, _ = self.open_text(editor, "one\n")
                before = self.tovrel.expect("menus", "--json", "--pid", application.pid).json
                application.stop()
                for source in (["--pid", application.pid], []):
                    answer = self.tovrel.run("menus", *source, deadline=NO_HANG)
                    self.assert_fails_in_one_line(answer, mentioning="answer|respond|time")
                application.resume()
                self.wait_until(lambda: self.tovrel.run("menus", "--pid", application.pid).status == 0, "an answer")
                after = self.tovrel.expect("menus", "--json", "--pid", application.pid).json
                self.assertEqual(after, before)

    def test_a_stopped_application_does_not_delay_another(self):
        hung, _ = self.open_text("featherpad", "one\n")
        editor, _ = self.open_text("mousepad", "two\n")
        before = self.tovrel.expect("menus", "--json", "--pid", editor.pid)
        hung.stop()
        answer = self.tovrel.expect("menus", "--json", "--pid", editor.pid, deadline=NO_HANG)
        self.assertEqual(answer, before)  # Nothing on standard error either.

    def test_an_application_killed_before_the_press(self):
        application, _ = self.open_text("mousepad", "one\n")
        source = ("--pid", application.pid)
        command = self.best_command("save as", *source)
        application.kill()
        application.process.wait()
        self.assert_fails_in_one_line(self.tovrel.run("press", *source, command))

    def test_an_application_killed_while_it_is_read_for_a_press(self):
        application, _ = self.open_text("mousepad", "one\n")
        command = self.best_command("save as", "--pid", application.pid)
        application.stop()
        # The stopped application answers nothing, so the program is certainly still reading when it dies.
        with subprocess.Popen([self.tovrel.path, "press", "--pid", str(application.pid), command],
                              env=self.desktop.environment, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                              text=True) as press:
            application.kill()
            output, errors = press.communicate(timeout=NO_HANG)
        self.assertEqual((press.returncode, output), (1, ""))
        self.assertRegex(errors, r"\Atovrel: [^\n]+\n\Z")


if __name__ == "__main__":
    main()
