# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Memory of the panel."""

import time

from . import process, stage
from .figures import goal, number, table

SETTLING = 10


def run(report):
    with stage.backend(stage.full(turn=0), stage.full(turn=1)):
        with stage.running(stage.FLOOR_QUICK) as pid:
            time.sleep(SETTLING)
            floor = process.pss_mib(pid)
        with stage.running(stage.FLOOR_WIDGETS) as pid:
            time.sleep(SETTLING)
            widgets = process.pss_mib(pid)
        with stage.running(stage.PANEL) as pid:
            time.sleep(SETTLING)
            fresh = process.pss_mib(pid)
            for tab in "23451":
                stage.key(f"ctrl+{tab}")
                time.sleep(1)
            visited = process.pss_mib(pid)
    rows = [("bare Qt Quick window", floor), ("bare widgets window", widgets),
            (f"panel, {SETTLING} s after start", fresh), ("panel, every tab visited", visited)]
    report.section("Memory", "100 alerts, 300 applications, 500 connections, changing.\n\n" + table(
        ("program", "PSS", "÷ Qt Quick floor"),
        [(name, f"{number(pss)} MiB", f"{pss / floor:.2f}") for name, pss in rows]))
    report.goal("PSS ÷ bare Qt Quick floor, full data", goal(fresh / floor, 1.4))
