# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Time of one poll, from its start to the change of the fourth field."""

import subprocess
from statistics import median

from . import stage
from .figures import goal, table, with_spread

SIZES = {100: 200, 10_000: 30, 200_000: 7}  # rows: rounds


def run(report):
    rows = []
    for count, rounds in SIZES.items():
        done = subprocess.run([str(stage.BENCH / "poll/bench_poll"), str(count), str(rounds)],
                              capture_output=True, text=True, check=True)
        # Skip the first rounds, which fill caches.
        lines = done.stdout.splitlines()[rounds // 5:]
        polled, worked, plain = zip(*([float(word) for word in line.split()] for line in lines))
        rows.append((f"{count:,}", *(with_spread(times, "ms") for times in (polled, worked, plain)),
                     f"{median(polled) / median(plain):.2f}"))
        if count == 100:
            report.goal("one poll, 100 rows each ÷ floor",
                        goal(median(polled) / median(plain), 2.0))
            report.goal("UI thread's share of it", goal(median(worked), 0.5, " ms"))
    report.section("One poll", "The floor: four blocking sockets, and the JSON library's plain "
                   "parse of what they bring.\n\n" + table(
                       ("rows in each list", "poll", "of it the UI thread", "floor", "÷ floor"),
                       rows))
