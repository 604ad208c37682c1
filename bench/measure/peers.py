# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Comparison with other desktop programs, started the same way."""

import os
import shutil
import subprocess
import time
from statistics import median

from . import process, stage
from .figures import goal, number, table

ROUNDS = 5
SETTLING = 10
PEERS = {
    "password manager": ("keepassxc",),
    "sync daemon's panel": ("syncthingtray", "--windowed"),
    "system monitor, GTK": ("gnome-system-monitor",),
    "system monitor, QML": ("plasma-systemmonitor",),
    "firewall's panel": ("opensnitch-ui",),
    "web-technology window": ("chromium", "--no-sandbox", "--disable-gpu", "--no-first-run",
                              "--disable-background-networking", "--disable-sync",
                              "--app=data:text/html,<h1>Quillmark</h1><p>Text"),
}


def on_a_bus(program):
    """Services that a peer starts over its own bus end with the bus."""
    return ("dbus-run-session", "--", *program)


def measure(program):
    first, pss, idle = [], 0.0, 0.0
    for turn in range(ROUNDS):
        pid, frame, _ = stage.first_frame(on_a_bus(program))
        first.append(frame)
        if turn == ROUNDS - 1:
            time.sleep(SETTLING)
            family = [p for p in process.tree(pid)[1:]]
            pss = sum(process.pss_mib(p) for p in family)
            before = sum(process.cpu_seconds(p) for p in family)
            time.sleep(10)
            idle = (sum(process.cpu_seconds(p) for p in family) - before) / 10 * 100
        for member in reversed(process.tree(pid)):
            stage.end(member)
    return median(first), pss, idle


def run(report):
    rows, others = [], []
    with stage.backend():
        own = measure(stage.PANEL)
        rows.append(("**this panel**", number(own[0]), "1", number(own[1]), "1", number(own[2])))
        for name, program in PEERS.items():
            if not shutil.which(program[0]):
                rows.append((name, "not installed", "", "", "", ""))
                continue
            try:
                first, pss, idle = measure(program)
            except (subprocess.SubprocessError, OSError) as failure:
                rows.append((name, f"did not start: {type(failure).__name__}", "", "", "", ""))
                continue
            others.append((first, pss))
            rows.append((f"{name} (`{os.path.basename(program[0])}`)", number(first),
                         f"{first / own[0]:.1f}", number(pss), f"{pss / own[1]:.1f}", number(idle)))
    report.section("Peers", "Each on a bus of its own, with all processes it starts.\n\n" + table(
        ("program", "first painted window, ms", "÷ panel", "PSS, MiB", "÷ panel", "idle CPU, %"),
        rows))
    if others:
        report.goal("first painted frame ÷ that of the quickest peer",
                    goal(own[0] / min(first for first, _ in others), 1))
        report.goal("PSS ÷ that of the smallest peer",
                    goal(own[1] / min(pss for _, pss in others), 1))
