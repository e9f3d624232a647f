"""The private desktop is private, and nothing of it remains."""

import os
import shutil
import signal
import subprocess
import sys
import textwrap
import unittest
from pathlib import Path

from harness import Desktop
from harness.process_tree import descendants, is_alive
from harness.testing import main
from harness.waiting import wait_until

# A program that opens a desktop with a hung application and then waits to be ended.
HOLDER = """
    import sys
    sys.path.insert(0, {tests!r})
    from harness import Desktop
    from harness.waiting import wait_until
    with Desktop() as desktop:
        desktop.launch(["mousepad"]).stop()
        print(desktop.home, flush=True)
        wait_until(lambda: False, "the end", 120)
"""


class PrivateDesktopTests(unittest.TestCase):
    def test_a_signal_leaves_no_process_and_no_file(self):
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            with self.subTest(signal=number.name):
                home, processes, status = self.end_a_holder(number)
                self.assertNotEqual(status, 0)
                self.assertEqual([pid for pid in processes if is_alive(pid)], [])
                self.assertFalse(home.exists())

    def test_killed_outright_its_processes_end_too(self):
        home, processes, _ = self.end_a_holder(signal.SIGKILL)
        self.addCleanup(shutil.rmtree, home)
        wait_until(lambda: not any(map(is_alive, processes)), "the processes to end")

    def test_an_application_sees_nothing_of_the_users_session(self):
        os.environ["SECRET_OF_THE_SESSION"] = "1"
        self.addCleanup(os.environ.pop, "SECRET_OF_THE_SESSION")
        with Desktop() as desktop:
            editor = desktop.launch(["mousepad"])
            seen = Path(f"/proc/{editor.pid}/environ").read_bytes().split(b"\0")
            names = {entry.partition(b"=")[0].decode() for entry in seen if entry}
            self.assertNotIn("SECRET_OF_THE_SESSION", names)
            for name in ("HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR", "DBUS_SESSION_BUS_ADDRESS", "DISPLAY"):
                self.assertIn(f"{name}={desktop.environment[name]}".encode(), seen)
            # Another program of this user cannot look at its screen either.
            stranger = {"PATH": os.environ["PATH"], "DISPLAY": desktop.environment["DISPLAY"]}
            refused = subprocess.run(["xprop", "-root"], env=stranger, capture_output=True, check=False)
            self.assertNotEqual(refused.returncode, 0)

    def end_a_holder(self, number):
        """Sends the signal to a program that holds a desktop. Returns the directory of that desktop, the
        processes it had and the status of the program."""
        code = textwrap.dedent(HOLDER.format(tests=str(Path(__file__).parent)))
        with subprocess.Popen([sys.executable, "-c", code], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                              text=True) as holder:
            home = Path(holder.stdout.readline().strip())
            processes = descendants(holder.pid)
            self.assertGreaterEqual(len(processes), 6)  # display, buses, their daemons, windows, editor
            holder.send_signal(number)
            return home.parent, processes, holder.wait(timeout=30)


if __name__ == "__main__":
    main()
