"""The program that presses keys and watches the screen (PixelWatch.cpp), as an object."""

import subprocess
from dataclasses import dataclass

TIMEOUT_MS = 5000
# Longer than the pauses of anything drawn in steps, shorter than a caret's blink.
QUIET_MS = 150


class NoChange(RuntimeError):
    """Nothing changed on the screen, or it did not come to rest."""


@dataclass(frozen=True)
class Times:
    """Milliseconds from a key press to the first changed pixels and to the last ones."""

    first: float
    last: float


class PixelWatch:
    def __init__(self, program, environment):
        self._process = subprocess.Popen([program], env=environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                         text=True, bufsize=1)

    def close(self):
        self._process.stdin.close()
        self._process.wait(timeout=10)
        self._process.stdout.close()

    def watch(self, x, y, width, height):
        self._ask("area", x, y, width, height)

    def press(self, *keys):
        self._ask("press", *keys)

    def time(self, *keys, quiet=QUIET_MS):
        """The times from pressing the keys in one instant to the changes; PixelWatch.cpp tells how keys are written."""
        first, last, _ = self._ask("time", quiet, TIMEOUT_MS, *keys).split()
        return Times(int(first) / 1000, int(last) / 1000)

    def wait_for_rest(self):
        self._ask("still", QUIET_MS, TIMEOUT_MS)

    def remember(self):
        self._ask("remember")

    def wait_until_restored(self):
        """Milliseconds until the area looks as remembered again."""
        return int(self._ask("restored", TIMEOUT_MS)) / 1000

    def wait_until_in_front(self, window):
        self._ask("front", window, TIMEOUT_MS)

    def resources(self, process_id):
        """The number of resources of each type that the X server holds for a process."""
        pairs = (pair.rpartition("=") for pair in self._ask("resources", process_id).split("\t"))
        return {name: int(count) for name, _, count in pairs}

    def own_error(self, rounds):
        """Milliseconds from a drawing until it is seen."""
        return [int(number) / 1000 for number in self._ask("calibrate", rounds).split()]

    def _ask(self, *words):
        self._process.stdin.write(" ".join(map(str, words)) + "\n")
        answer = self._process.stdout.readline().strip()
        if not answer or answer.startswith("no"):
            raise NoChange(f"{' '.join(map(str, words))}: {answer or 'the watching program has ended'}")
        return answer
