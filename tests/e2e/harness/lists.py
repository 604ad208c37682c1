# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Lists read row by row and scrolled by keyboard."""

from . import hands
from .waiting import until


def listed(panel, name):
    """The list and its visible rows, top to bottom."""
    found = panel.tree.find("list", name)
    assert found, f"no list {name!r}"
    rows = [r for r in found.every("row") if r.box.bottom > found.box.y
            and r.box.y < found.box.bottom]
    return found, sorted(rows, key=lambda row: row.box.y)


def names(panel, name):
    return [row.name for row in listed(panel, name)[1]]


def scroll(panel, name, key, times=1):
    """Presses a key in the list and waits until its rows have moved and settled."""
    panel.focus_on("list", name)
    before = listed(panel, name)[1]
    hands.key(key, times=times)
    until(lambda: listed(panel, name)[1] != before, f"{name} to scroll by {key}")
    return settled(panel, name)


def settled(panel, name):
    seen = []

    def still():
        seen.append(listed(panel, name)[1])
        return len(seen) > 1 and seen[-1] == seen[-2] and seen[-1]

    return until(still, f"{name} to stop moving", step=0.1)


def read_through(panel, name):
    """The names of all rows from first to last, paging down; they must differ."""
    panel.focus_on("list", name)
    hands.key("Home")
    seen = [row.name for row in settled(panel, name)]
    while True:
        hands.key("Next")
        new = [row.name for row in settled(panel, name) if row.name not in seen]
        if not new:
            return seen
        seen += new
