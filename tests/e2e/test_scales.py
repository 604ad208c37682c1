# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Every tab at every usual scale, for the eye too."""

from itertools import groupby

import pytest

from harness import bodies, colours, hands
from harness.layout import assert_uncut
from harness.screen import BUILD, Picture, save
from harness.waiting import until
from harness.window import Box, tool

TABS = ("Dashboard", "Network", "Inventory", "Alerts", "Settings")
SCREEN = (3100, 2200)

pytestmark = pytest.mark.usefixtures("token")


@pytest.mark.parametrize("scale", ["1", "1.25", "1.5", "2", "3"])
def test_pictures(launch, scale):
    panel = launch(QT_SCALE_FACTOR=scale)
    panel.tree.wait_for("text", "OK")
    window = panel.window.box
    assert window[2:] == (round(1000 * float(scale)), round(700 * float(scale)))
    hands.park()
    bars = []
    for tab in TABS:
        panel.show(tab)
        # The bar under the active tab tells when the tab has been drawn.
        bars.append(until(lambda: bar(window, bars), f"{tab} to be drawn"))
        assert_uncut(panel.tree.read())
        save(BUILD / "pictures" / f"{tab.lower()}-{scale}.png", window)
    assert bars == sorted(bars)


@pytest.mark.parametrize("scale", ["1", "1.25", "1.5", "1.75", "2"])
def test_lines_between_rows_are_equally_thick(launch, scale):
    rows = [bodies.app(f"App {n}", **({"version": "1"} if n % 3 else {})) for n in range(30)]
    panel = launch({"inventory": bodies.inventory(*rows)}, QT_SCALE_FACTOR=scale)
    panel.show("Inventory")
    panel.tree.wait_for("list", "Installed applications")
    hands.park()
    window = panel.window.box
    # Right of all texts, below the tab bar.
    column = Box(window.centre[0], window.y + window.height // 3, 1, window.height // 2)
    pixels = list(Picture.settled(SCREEN[0]).pixels(column))
    lines = [len(list(run)) for colour, run in groupby(pixels) if colour == colours.SEPARATOR]
    # The first and the last may be cut off.
    assert len(lines) >= 7 and len(set(lines[1:-1])) == 1, lines


@pytest.mark.parametrize("scale", ["1", "1.25", "1.5", "1.75", "2"])
def test_rows_leave_no_trace_when_they_shrink(launch, backend, scale):
    short = bodies.alerts(*(bodies.alert(f"Alert {n}", description="a word") for n in range(3)))
    long = bodies.alerts(*(bodies.alert("many words " * 1000, description="and more " * 1000)
                           for _ in range(20)))
    panel = launch({"alerts": short}, QT_SCALE_FACTOR=scale)
    panel.show("Alerts")
    hands.park()
    panel.tree.wait_for("text", "Alert 0")
    before = Picture.settled(SCREEN[0])
    for bodies_sent, told in (long, "many words "), (short, "Alert 0"):
        backend.reply(alerts=bodies_sent)
        panel.tree.wait_for_beginning("text", told)
    assert Picture.settled(SCREEN[0]).whole() == before.whole()


# The resource a desktop sets when texts shall be larger, and Qt's own word for it.
@pytest.mark.parametrize("environment, resource", [
    ({}, "Xft.dpi:\t192"), ({"QT_FONT_DPI": "192"}, "Xft.dpi:\t96"),
], ids=["desktop", "Qt"])
def test_texts_of_double_size(launch, environment, resource):
    tool("xprop", "-root", "-f", "RESOURCE_MANAGER", "8s", "-set", "RESOURCE_MANAGER", resource)
    panel = launch(**environment)
    panel.tree.wait_for("text", "OK")
    # Either enlarges all alike, not the texts alone, so that they still fit.
    assert panel.window.box[2:] == (2000, 1400)
    for tab in TABS:
        panel.show(tab)
        assert_uncut(panel.tree.read())
    tool("xprop", "-root", "-remove", "RESOURCE_MANAGER")


def bar(window, known):
    """Where a long line of solid blue begins that was not known yet."""
    picture = Picture(SCREEN[0])
    length = 60
    for y in range(window.y + window.height // 8, window.y + window.height // 3):
        row = [picture.pixel(x, y) == colours.BLUE for x in range(window.x, window.right)]
        for x in range(len(row) - length):
            if all(row[x:x + length]):
                return x not in known and x
    return None
