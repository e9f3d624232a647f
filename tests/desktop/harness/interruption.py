"""Turns the signals that end a program into exceptions, so that everything started is taken down."""

import signal

ENDING_SIGNALS = (signal.SIGTERM, signal.SIGHUP)


class Interrupted(KeyboardInterrupt):
    """The program was asked to end. Like Ctrl-C, it passes through handlers of ordinary errors."""


def raise_on_ending_signals():
    """Makes a request to end raise Interrupted in the main thread, as Ctrl-C raises KeyboardInterrupt."""
    def interrupt(number, _frame):
        raise Interrupted(signal.Signals(number).name)
    for number in ENDING_SIGNALS:
        signal.signal(number, interrupt)


class undisturbed:
    """Ignores requests to end and Ctrl-C while entered, for taking things down."""

    def __enter__(self):
        self._before = {number: signal.signal(number, signal.SIG_IGN)
                        for number in (*ENDING_SIGNALS, signal.SIGINT)}

    def __exit__(self, *_):
        for number, handler in self._before.items():
            signal.signal(number, handler)
