# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""CPU cost of the panel without user input."""

import time

from harness import window

from . import process, stage
from .figures import goal, number, table

SECONDS = 60
TABS = {"Dashboard": 1, "Network": 2, "Inventory": 3, "Alerts": 4, "Settings": 5}


def share(pid, seconds):
    """CPU use in percent of a core, and wake-ups per second."""
    cpu, woken, start = process.cpu_seconds(pid), process.switches(pid), time.monotonic()
    time.sleep(seconds)
    elapsed = time.monotonic() - start
    return ((process.cpu_seconds(pid) - cpu) / elapsed * 100,
            (process.switches(pid) - woken) / elapsed)


def front(tab):
    return lambda pid: stage.key(f"ctrl+{TABS[tab]}")


def minimise(pid):
    window.visible(pid)[0].minimise()


def close(pid):
    stage.key("ctrl+w")


def run(report, seconds=SECONDS):
    same, changing = (0, 0), (0, 1)
    situations = [
        (f"{tab}, same data", 500, same, front(tab)) for tab in TABS
    ] + [
        (f"{tab}, changing data", 500, changing, front(tab)) for tab in TABS
    ] + [
        ("Network, 10,000 connections, changing data", 10_000, changing, front("Network")),
        ("minimised, changing data", 500, changing, minimise),
        ("window closed, changing data", 500, changing, close),
    ]
    rows, shares = [], {}
    for name, count, turns, arrange in situations:
        with stage.backend(*(stage.full(count, turn) for turn in turns)):
            with stage.running(stage.PANEL) as pid:
                arrange(pid)
                time.sleep(6)  # past the first poll and the creation of the tab
                percent, wakeups = share(pid, seconds)
        rows.append((name, f"{percent:.3f} %", number(wakeups)))
        shares[name] = percent
    report.section("Idle cost", f"Over {seconds} s of polls.\n\n" + table(
        ("in front", "of a core", "wake-ups/s"), rows))
    for name, limit in (("Dashboard, changing data", 0.15),
                        ("Network, 10,000 connections, changing data", 0.5),
                        ("minimised, changing data", 0.05),
                        ("window closed, changing data", 0.05)):
        report.goal(f"idle CPU: {name}", goal(shares[name], limit, " %"))
