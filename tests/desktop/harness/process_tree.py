"""The processes below this one, orphans included, from the kernel."""

import ctypes
import os

PR_SET_CHILD_SUBREAPER = 36


def adopt_orphans(adopt):
    """Makes this process the parent of every process below it whose own parent ends, or stops doing so. A daemon
    that a bus started on demand is thus still found and ended."""
    libc = ctypes.CDLL(None, use_errno=True)
    if libc.prctl(PR_SET_CHILD_SUBREAPER, int(adopt), 0, 0, 0) != 0:
        raise OSError(ctypes.get_errno(), "prctl(PR_SET_CHILD_SUBREAPER)")


def descendants(ancestor):
    """The process ids below `ancestor`: children before grandchildren, processes that have ended left out."""
    children = {}
    for entry in os.listdir("/proc"):
        parent = _living_parent(entry) if entry.isdigit() else None
        if parent is not None:
            children.setdefault(parent, []).append(int(entry))
    found = [ancestor]
    for process_id in found:
        found.extend(children.get(process_id, []))
    return found[1:]


def is_alive(process_id):
    """Whether the process runs; false also for one that has ended and whose status nobody has taken yet."""
    return _living_parent(str(process_id)) is not None


def reap_orphans(children_of_others):
    """Takes the exit status of adopted processes that have ended; those in `children_of_others` are left to
    the code that started them."""
    own = str(os.getpid())
    for entry in os.listdir("/proc"):
        if not entry.isdigit() or int(entry) in children_of_others:
            continue
        state_and_parent = _state_and_parent(entry)
        if state_and_parent == ("Z", own):
            try:
                os.waitpid(int(entry), os.WNOHANG)
            except ChildProcessError:
                pass


def _living_parent(entry):
    state_and_parent = _state_and_parent(entry)
    if state_and_parent is None or state_and_parent[0] == "Z":
        return None
    return int(state_and_parent[1])


def _state_and_parent(entry):
    try:
        with open(f"/proc/{entry}/stat", encoding="utf-8", errors="replace") as file:
            # The second field is the name in parentheses and may itself hold spaces and parentheses.
            fields = file.read().rpartition(")")[2].split()
    except (FileNotFoundError, ProcessLookupError):
        return None
    return fields[0], fields[1]
