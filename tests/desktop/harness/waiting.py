"""Waiting on conditions. Nothing in the harness or in a test pauses in any other way."""

import time

POLL_INTERVAL = 0.02
DEFAULT_TIMEOUT = 20.0


class TimedOut(AssertionError):
    """A condition did not come true before its deadline."""


def wait_until(condition, what, timeout=DEFAULT_TIMEOUT):
    """Calls `condition` until it returns something true and returns that; raises TimedOut after `timeout`
    seconds. `what` completes the sentence "waited … for"."""
    deadline = time.monotonic() + timeout
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() >= deadline:
            raise TimedOut(f"waited {timeout:g} s in vain for {what}")
        time.sleep(POLL_INTERVAL)
