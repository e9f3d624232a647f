"""A program whose main thread stands still, for whatever reason, while its other threads go on."""

import contextlib
import ctypes
import os

SEIZE, INTERRUPT, DETACH = 0x4206, 0x4207, 17
WAIT_FOR_ALL = 0x40000000  # threads included


@contextlib.contextmanager
def stalled_main_thread(process_id):
    """Stops the main thread of a process of one's own, as a debugger does, until the context is left."""
    # The main thread's number is the process's.
    _trace(SEIZE, process_id)
    try:
        _trace(INTERRUPT, process_id)
        os.waitpid(process_id, WAIT_FOR_ALL)
        yield
    finally:
        _trace(DETACH, process_id)


def _trace(request, thread):
    libc = ctypes.CDLL(None, use_errno=True)
    libc.ptrace.argtypes = [ctypes.c_long, ctypes.c_long, ctypes.c_void_p, ctypes.c_void_p]
    if libc.ptrace(request, thread, None, None) != 0:
        raise OSError(ctypes.get_errno(), "ptrace")
