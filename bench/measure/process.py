# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The kernel's figures about a process."""

import os
import re
from pathlib import Path

TICK = os.sysconf("SC_CLK_TCK")


def cpu_seconds(pid):
    """CPU seconds of all living threads, from the scheduler's nanosecond counters."""
    total = 0
    for task in Path(f"/proc/{pid}/task").iterdir():
        total += int((task / "schedstat").read_text().split()[0])
    return total / 1e9


def switches(pid):
    """Voluntary context switches of all threads: one for each wake-up."""
    total = 0
    for task in Path(f"/proc/{pid}/task").iterdir():
        status = (task / "status").read_text()
        total += int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)", status, re.M)[1])
    return total


def pss_mib(pid):
    """PSS in MiB: a shared page is divided among the processes that share it."""
    rollup = Path(f"/proc/{pid}/smaps_rollup").read_text()
    return int(re.search(r"^Pss:\s+(\d+)", rollup, re.M)[1]) / 1024


def rss_mib(pid):
    status = Path(f"/proc/{pid}/status").read_text()
    return int(re.search(r"^VmRSS:\s+(\d+)", status, re.M)[1]) / 1024


def tree(pid):
    """Ids of the process and all its descendants."""
    found = [pid]
    for task in Path(f"/proc/{pid}/task").iterdir():
        for child in (task / "children").read_text().split():
            found += tree(int(child))
    return found
