# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Time from a key press to the frame with the new tab."""

import time

from harness.panel import TABS

from . import stage
from .figures import goal, spread, table, with_spread
from .observed import Observed

ROUNDS = 10


def run(report):
    first, later = {n: [] for n in TABS}, {n: [] for n in TABS}
    with stage.backend(stage.full(10_000)):
        for _ in range(3):
            with Observed(stage.PANEL) as panel:
                for turn in range(ROUNDS):
                    for number, name in enumerate(TABS, 1):
                        pressed = time.monotonic()
                        stage.key(f"ctrl+{number}")
                        time.sleep(0.4)
                        frames = [f for f in panel.frames() if f > pressed]
                        if frames:
                            (later if turn else first)[name].append((frames[0] - pressed) * 1000)
    report.section("Tab switch", "From the moment before the key is sent, which costs some "
                   "milliseconds of its own, to the first frame with the tab; 10,000 "
                   "connections.\n\n" + table(
                       ("tab", "the first time", "later"),
                       [(n, with_spread(first[n], "ms") if first[n] else "was in front",
                         with_spread(later[n], "ms")) for n in TABS]))
    report.goal("tab switch, to painted, slowest tab",
                goal(max(spread(s)[0] for s in [*later.values(), *first.values()] if s), 30, " ms"))
