# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Time from the start to the first painted window."""

from statistics import median

from . import stage
from .figures import goal, table, with_spread

ROUNDS = 25


def run(report, rounds=ROUNDS):
    contenders = {"panel": stage.PANEL, "bare Qt Quick window": stage.FLOOR_QUICK,
                  "bare widgets window": stage.FLOOR_WIDGETS}
    first = {name: [] for name in contenders}
    settled = {name: [] for name in contenders}
    with stage.backend():
        for turn in range(rounds + 1):
            for name, program in contenders.items():
                pid, frame, last = stage.first_frame(program)
                stage.end(pid)
                if turn:  # the first round fills the disk caches
                    first[name].append(frame)
                    settled[name].append(last)
    floor = median(first["bare Qt Quick window"])
    report.section("Start", table(
        ("program", "first painted frame", "÷ Qt Quick floor", "last change within a second"),
        [(name, with_spread(first[name], "ms"), f"{median(first[name]) / floor:.2f}",
          with_spread(settled[name], "ms")) for name in contenders]))
    report.goal("first painted frame ÷ bare Qt Quick floor",
                goal(median(first["panel"]) / floor, 1.3))
