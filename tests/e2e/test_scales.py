# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Every tab at every usual scale, with pictures for a person to check."""

import pytest

from harness import colours, hands
from harness.layout import assert_uncut
from harness.panel import TABS
from harness.screen import BUILD, Picture, save
from harness.waiting import until
from harness.window import Box, tool

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
        # The bar under the active tab shows when the tab has been drawn.
        bars.append(until(lambda: bar(window, bars), f"{tab} to be drawn"))
        assert_uncut(panel.tree.read())
        save(BUILD / "pictures" / f"{tab.lower()}-{scale}.png", window)
    assert bars == sorted(bars)


# The resource that a desktop sets for larger texts, and Qt's own variable for it.
@pytest.mark.parametrize("environment, resource", [
    ({}, "Xft.dpi:\t192"), ({"QT_FONT_DPI": "192"}, "Xft.dpi:\t96"),
], ids=["desktop", "Qt"])
def test_texts_of_double_size(launch, environment, resource):
    tool("xprop", "-root", "-f", "RESOURCE_MANAGER", "8s", "-set", "RESOURCE_MANAGER", resource)
    panel = launch(**environment)
    panel.tree.wait_for("text", "OK")
    # Both enlarge everything, not only the texts, so these still fit.
    assert panel.window.box[2:] == (2000, 1400)
    for tab in TABS:
        panel.show(tab)
        assert_uncut(panel.tree.read())
    tool("xprop", "-root", "-remove", "RESOURCE_MANAGER")


def bar(window, known):
    """The start of a long blue line that is not in `known`; None if there is none."""
    picture = Picture()
    for y in range(window.y + window.height // 8, window.y + window.height // 3):
        row = Box(window.x, y, window.width, 1)
        if (x := picture.find(colours.BLUE, row, length=60)) is not None:
            return x not in known and x
    return None
