"""Starting processes so that none outlives the harness."""

import os
import signal
import subprocess
import sys
from pathlib import Path

from .process_tree import adopt_orphans, descendants, reap_orphans
from .waiting import TimedOut, wait_until

GRACE = 3.0


class Processes:
    """Starts processes, each with its output in a log file. Closing it ends all of them and everything they
    started in turn. If this process is killed itself, the kernel ends them."""

    def __init__(self, log_directory):
        self._log_directory = Path(log_directory)
        self._started = []
        # Only processes that start later are ended; the caller may have some of its own.
        self._before = set(descendants(os.getpid()))
        adopt_orphans(True)

    def start(self, command, environment, death_signal="KILL", **options):
        """Starts `command` in a session of its own and returns its Popen, with the attribute `log` added."""
        log = self._log_directory / f"{len(self._started):02}-{Path(command[0]).name}.log"
        with open(log, "wb") as output:
            process = subprocess.Popen(
                ["setpriv", "--pdeathsig", death_signal, "--", *command],
                env=environment, stdin=subprocess.DEVNULL, stdout=output, stderr=output,
                start_new_session=True, **options)
        process.log = log
        self._started.append(process)
        return process

    def require_running(self, process, what):
        """Raises with the end of its log when the process has ended; for use inside conditions."""
        status = process.poll()
        if status is not None:
            raise RuntimeError(f"{what} ended with status {status}:\n{log_tail(process)}")

    def end(self, process):
        """Ends one started process, by request and then by force."""
        self._end(lambda: [process.pid] if process.poll() is None else [])

    def close(self):
        """Ends every process that was started below this one since construction."""
        self._end(self._remaining)
        adopt_orphans(False)
        for process in self._started:
            process.wait()

    def _remaining(self):
        for process in self._started:
            process.poll()
        reap_orphans(children_of_others=self._before | {process.pid for process in self._started})
        return [pid for pid in descendants(os.getpid()) if pid not in self._before]

    def _end(self, remaining):
        for number, grace in ((signal.SIGTERM, GRACE), (signal.SIGKILL, 2 * GRACE)):
            for process_id in remaining():
                _send(process_id, number)
                _send(process_id, signal.SIGCONT)
            try:
                wait_until(lambda: not remaining(), "processes to end", grace)
                return
            except TimedOut:
                continue
        print(f"processes left behind: {remaining()}", file=sys.stderr)


def log_tail(process, lines=15):
    """The last lines that a process started by Processes has written."""
    text = process.log.read_text(encoding="utf-8", errors="replace")
    return "\n".join(text.splitlines()[-lines:])


def _send(process_id, number):
    try:
        os.kill(process_id, number)
    except ProcessLookupError:
        pass
