"""The resident program can be reached when the session bus is gone, is back, or serves two displays."""

import subprocess

from harness.desktop import DEFAULT_SIZE
from harness.display import start_display
from harness.palette_testing import PaletteTestCase, main

NAME = "org.tovrel.Tovrel"


class SessionBusTests(PaletteTestCase):
    def owns_name(self):
        answer = subprocess.run(
            ["dbus-send", "--session", "--print-reply=literal", "--dest=org.freedesktop.DBus", "/",
             "org.freedesktop.DBus.GetConnectionUnixProcessID", f"string:{NAME}"],
            env=self.desktop.environment, capture_output=True, text=True, timeout=20, check=False)
        return answer.stdout.split()[-1:] == [str(self.resident.pid)]

    def start_again(self):
        second = subprocess.run([self.tovrel.path], env=self.desktop.environment, timeout=20, check=False,
                                capture_output=True)
        self.assertEqual((second.returncode, second.stdout, second.stderr), (0, b"", b""))

    def test_the_bus_is_gone_and_comes_back(self):
        self.start_resident()
        self.wait_until(self.owns_name, "the name")
        self.desktop.end_session_bus()
        self.start_again()
        self.wait_until(lambda: self.resident.window, "the palette, opened without a bus")
        self.tovrel.expect("toggle")
        self.wait_until_closed()
        for _ in range(2):
            self.desktop.replace_session_bus()
            self.wait_until(self.owns_name, "the name to be taken again")
        self.start_again()
        self.wait_until(lambda: self.resident.window, "the palette, opened over the new bus")
        self.tovrel.expect("quit")
        self.assertEqual(self.resident.process.wait(timeout=20), 0)
        self.assertEqual((self.resident.output, self.resident.errors), ("", ""))
        self.assert_fails_in_one_line(self.tovrel.run("status"), "not running")

    def test_the_remains_of_a_killed_program_are_no_obstacle(self):
        for _ in range(2):
            self.start_resident()
            self.resident.process.kill()
            self.resident.process.wait()
            self.assert_fails_in_one_line(self.tovrel.run("status"), "not running")
        self.start_resident()
        self.wait_until(self.owns_name, "the name")

    def test_each_display_has_its_own(self):
        self.start_resident()
        other = dict(self.desktop.environment)
        start_display(self.desktop.processes, self.directory, other, DEFAULT_SIZE)
        first = self.resident
        second = self.start_resident(DISPLAY=other["DISPLAY"], XAUTHORITY=other["XAUTHORITY"])
        for resident, environment in ((first, self.desktop.environment), (second, second.environment)):
            status = self.tovrel.expect("status", "--json", environment=environment).json
            self.assertEqual(status["processIdentifier"], resident.pid)
        self.assertEqual(first.end(), 0)
        self.wait_until(self.owns_name, "the name to go to the one that is left")


if __name__ == "__main__":
    main()
