# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The lines between the rows of a list, pixel by pixel."""

from itertools import groupby

import pytest

from harness import bodies, colours, hands
from harness.panel import Panel
from harness.screen import Picture
from harness.window import Box

SCREEN = (3100, 2200)

APPS = bodies.inventory(*(
    bodies.app(f"App {n}", **({"version": "1"} if n % 3 else {})) for n in range(30)))
SHORT = bodies.alerts(*(bodies.alert(f"Alert {n}", description="a word") for n in range(3)))
LONG = bodies.alerts(*(bodies.alert("many words " * 1000, description="and more " * 1000)
                       for _ in range(20)))


@pytest.fixture(scope="module", params=["1", "1.25", "1.5", "1.75", "2"])
def panel(request, display, token, backend):
    backend.reply(inventory=APPS, alerts=SHORT)
    panel = Panel(QT_SCALE_FACTOR=request.param).opened()
    yield panel
    panel.finish()


def test_lines_are_equally_thick(panel):
    panel.show("Inventory")
    panel.tree.wait_for("list", "Installed applications")
    hands.park()
    window = panel.window.box
    # Right of all texts, below the tab bar.
    column = Box(window.centre[0], window.y + window.height // 3, 1, window.height // 2)
    pixels = list(Picture.settled().pixels(column))
    lines = [len(list(run)) for colour, run in groupby(pixels) if colour == colours.SEPARATOR]
    # The first and the last may be cut off.
    assert len(lines) >= 7 and len(set(lines[1:-1])) == 1, lines


def test_lines_leave_no_trace_when_rows_shrink(panel, backend):
    panel.show("Alerts")
    hands.park()
    panel.tree.wait_for("text", "Alert 0")
    before = Picture.settled()
    for bodies_sent, shown in (LONG, "many words " * 1000), (SHORT, "Alert 0"):
        backend.reply(alerts=bodies_sent)
        backend.wait_for_poll()
        panel.tree.wait_for("text", shown)
    assert Picture.settled().whole() == before.whole()
