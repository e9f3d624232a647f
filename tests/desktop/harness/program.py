"""Running the program under test."""

import json
import os
import subprocess
from dataclasses import dataclass
from pathlib import Path

# Longer than any answer may take, so that a hang fails the test instead of stopping it.
ANSWER_DEADLINE = 60


@dataclass(frozen=True)
class Answer:
    """The outcome of one run of the program."""

    status: int
    output: str
    errors: str

    @property
    def json(self):
        return json.loads(self.output)


class Program:
    """The `tovrel` program on a desktop, or in another environment."""

    def __init__(self, environment, path=None):
        self.path = Path(path or os.environ.get("TOVREL_PROGRAM", ""))
        if not self.path.is_file():
            raise RuntimeError("TOVREL_PROGRAM must name the program under test")
        self._environment = environment

    def run(self, *arguments, environment=None, deadline=ANSWER_DEADLINE):
        """Runs it to its end and returns the answer, whatever the exit status; raises after `deadline` seconds."""
        answer = subprocess.run([self.path, *map(str, arguments)], env=environment or self._environment,
                                stdin=subprocess.DEVNULL, capture_output=True, text=True, encoding="utf-8",
                                errors="surrogateescape", timeout=deadline, check=False)
        return Answer(answer.returncode, answer.stdout, answer.stderr)

    def expect(self, *arguments, environment=None, deadline=ANSWER_DEADLINE):
        """Does the same as `run`, but a failure of the program is a failure of the test."""
        answer = self.run(*arguments, environment=environment, deadline=deadline)
        if answer.status != 0:
            raise AssertionError(f"tovrel {' '.join(map(str, arguments))} ended with status {answer.status}: "
                                 f"{answer.errors.strip()}")
        return answer
