"""What the kernel tells about a running process."""

import os
from pathlib import Path


def proportional_memory(process_id):
    """MB that it keeps in memory, what it shares divided by those who share it (PSS)."""
    return _rollup(process_id, "Pss:")


def private_memory(process_id):
    """MB that it has written to and nobody else has: what grows when it leaks."""
    return _rollup(process_id, "Private_Dirty:")


def open_files(process_id):
    return len(os.listdir(f"/proc/{process_id}/fd"))


def threads(process_id):
    return len(os.listdir(f"/proc/{process_id}/task"))


def wake_ups(process_id):
    """How often its threads have waited for something and gone on, by thread; each was woken for it."""
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
