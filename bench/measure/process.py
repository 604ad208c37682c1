# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the kernel counts of a process."""

import os
import re
from pathlib import Path

TICK = os.sysconf("SC_CLK_TCK")


def cpu_seconds(pid):
    """The scheduler's own account, in nanoseconds, of every thread that lives."""
    total = 0
    for task in Path(f"/proc/{pid}/task").iterdir():
        total += int((task / "schedstat").read_text().split()[0])
    return total / 1e9


def switches(pid):
    """How often the threads went to sleep: one for each wake-up."""
    total = 0
    for task in Path(f"/proc/{pid}/task").iterdir():
        status = (task / "status").read_text()
        total += int(re.search(r"^voluntary_ctxt_switches:\s+(\d+)", status, re.M)[1])
    return total


def pss_mib(pid):
    """With each shared page counted in its sharers' parts."""
    rollup = Path(f"/proc/{pid}/smaps_rollup").read_text()
    return int(re.search(r"^Pss:\s+(\d+)", rollup, re.M)[1]) / 1024


def rss_mib(pid):
    status = Path(f"/proc/{pid}/status").read_text()
    return int(re.search(r"^VmRSS:\s+(\d+)", status, re.M)[1]) / 1024


def tree(pid):
    """The process and all below it."""
    found = [pid]
    for task in Path(f"/proc/{pid}/task").iterdir():
        for child in (task / "children").read_text().split():
            found += tree(int(child))
    return found
