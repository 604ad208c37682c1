# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""How the panel handles very long lists."""

import time
from statistics import median

from harness import hands, window
from harness.waiting import until

from . import process, stage
from .figures import goal, number, table
from .observed import Observed

# The last one almost fills a body of 64 MiB, the longest that the panel reads.
SIZES = (1_000, 10_000, 35_000, 200_000, 350_000)
POLLS = 4
SCREENS = ((1000, 700), (2560, 1440))


def ready(server, panel):
    server.wait_for_poll()
    stage.key("ctrl+2")
    server.wait_for_poll()
    time.sleep(2)


def swaps(server, panel):
    """Over some polls: the median milliseconds from the start of sending the
    connections to the frame that shows them, and the longest milliseconds in which
    the UI thread handled no events."""
    since, shown = time.monotonic(), []
    for _ in range(POLLS):
        server.wait_for_poll()
        time.sleep(2)
        started, finished = (server.seen(what)[-1].answered for what in ("network", "inventory"))
        shown += [(frame - started) * 1000 for frame in panel.frames() if frame > finished][:1]
    return median(shown), 1000 * max((span for _, span in panel.busy(since)), default=0)


def draws(panel, key):
    since = time.monotonic()
    hands.key(key)
    time.sleep(0.3)
    return any(frame > since for frame in panel.frames())


def focus_the_list(panel):
    """Presses Tab until the list has the focus: then the page keys draw something."""
    for _ in range(15):
        hands.key("Tab")
        time.sleep(0.3)
        # Several keys, because a poll may have drawn something in between.
        if all(draws(panel, key) for key in ("Next", "Prior", "Next", "Prior")):
            return
    raise AssertionError("the list cannot be reached")


def scrolling(panel, size):
    """The longest frame in milliseconds for each way to scroll the list."""
    shown = window.visible(panel.pid)[0]
    shown.move(0, 0)
    shown.resize(*size)
    until(lambda: (shown.box.width, shown.box.height) == size, "the window's size")
    time.sleep(1)
    longest = {}
    for name, action in (
        ("wheel", lambda: hands.wheel_down(shown.box, 60)),
        ("page keys", lambda: hands.key("Next", times=40)),
        ("End key", lambda: hands.key("End")),
    ):
        hands.key("Home")
        time.sleep(0.5)
        since = time.monotonic()
        action()
        time.sleep(1.5)
        drawn = sum(frame > since for frame in panel.frames())
        assert drawn, f"{name} scrolled nothing"
        longest[name] = 1000 * max((span for _, span in panel.busy(since)), default=0)
    return longest


def growth(report, costs):
    """Reports the cost of one more connection in the longest list, relative to that
    in a list a tenth as long."""
    least, some, most = SIZES[0], SIZES[2], SIZES[-1]
    for index, what in enumerate(("time until shown", "memory")):
        each = {count: (costs[count][index] - costs[least][index]) / (count - least)
                for count in (some, most)}
        report.goal(f"{what} of a connection among {most:,} ÷ among {some:,}",
                    goal(each[most] / each[some], 1.25))


def run(report):
    rows, costs = [], {}
    for count in SIZES:
        with stage.backend(stage.full(count, 0), stage.full(count, 1)) as server:
            with Observed(stage.PANEL) as panel:
                ready(server, panel)
                shown, gap = swaps(server, panel)
                resident = process.rss_mib(panel.pid)
                focus_the_list(panel)
                frames = [scrolling(panel, size) for size in SCREENS]
        costs[count] = shown, resident
        rows.append((f"{count:,}", number(shown) + " ms",
                     number(gap) + " ms", number(resident) + " MiB",
                     *(", ".join(f"{number(v)}" for v in f.values()) for f in frames)))
        if count == 200_000:
            report.goal("swap of 200,000 connections, UI thread's longest gap", goal(gap, 8, " ms"))
            report.goal("longest frame while scrolling 200,000 rows, 1000 × 700",
                        goal(max(frames[0].values()), 16, " ms"))
    growth(report, costs)
    report.section("Large lists", "Every row differs from poll to poll; the Network tab is in "
                   "front. Shown means from the first byte of the connections sent to the "
                   "frame with them. Longest frames in ms: wheel, page keys, End key.\n\n" + table(
                       ("connections", "poll to shown", "longest gap of the UI thread",
                        "resident", "frames 1000 × 700", "frames 2560 × 1440"), rows))
