"""Facts about a running process from the kernel."""

import os
from pathlib import Path


def proportional_memory(process_id):
    """MB that it keeps in memory; shared memory is divided by the number of processes that share it (PSS)."""
    return _rollup(process_id, "Pss:")


def private_memory(process_id):
    """MB of memory that only this process has written to; a leak makes it grow."""
    return _rollup(process_id, "Private_Dirty:")


def open_files(process_id):
    return len(os.listdir(f"/proc/{process_id}/fd"))


def threads(process_id):
    return len(os.listdir(f"/proc/{process_id}/task"))


def wake_ups(process_id):
    """The number of times that each of its threads has waited and was woken, by thread."""
    counts = {}
    for task in Path(f"/proc/{process_id}/task").iterdir():
        lines = (task / "status").read_text(encoding="utf-8").splitlines()
        fields = dict(line.split(":\t", 1) for line in lines if ":\t" in line)
        counts[f"{task.name} {fields['Name']}"] = int(fields["voluntary_ctxt_switches"])
    return counts


def _rollup(process_id, name):
    lines = Path(f"/proc/{process_id}/smaps_rollup").read_text(encoding="utf-8").splitlines()
    kibibytes = next(line.split()[1] for line in lines if line.startswith(name))
    return int(kibibytes) * 1024 / 1e6
