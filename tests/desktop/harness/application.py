"""One application running on the private desktop."""

import os
import signal


class Application:
    """A started application with a window on the screen."""

    def __init__(self, process, window, desktop):
        self.process = process
        self.window = window
        self._desktop = desktop

    @property
    def pid(self):
        return self.process.pid

    @property
    def tree(self):
        """The root of its accessible tree as the witness sees it."""
        return self._desktop.witness.application(self.pid)

    def text(self):
        """The content of its text view, or None while it has none."""
        view = self.tree.find("text") if self.tree else None
        return view.text if view else None

    def is_active(self):
        """Whether it knows that one of its windows is the active one. It hears of that a little after the window
        manager has said so, and until then some of its commands are disabled."""
        return self.tree is not None and any("active" in window.states for window in self.tree.children)

    def bring_to_front(self):
        self._desktop.bring_to_front(self.window)

    def stop(self):
        """Suspends it, as if it hung."""
        os.kill(self.pid, signal.SIGSTOP)

    def resume(self):
        os.kill(self.pid, signal.SIGCONT)

    def kill(self):
        """Ends it without warning; it cannot tidy up."""
        os.kill(self.pid, signal.SIGKILL)

    def end(self):
        """Ends it and waits until it is gone."""
        self._desktop.end(self)
