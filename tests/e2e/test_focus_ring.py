# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The focus ring has enough contrast with the pixels on both sides of it."""

import pytest

from harness import colours, hands, settings
from harness.contrast import contrast
from harness.panel import TABS
from harness.screen import Picture
from harness.waiting import until

WEAKEST = 3.0
THICKNESS = 2
# How far from a control's edge its ring may be, either way.
NEAR = 8

pytestmark = pytest.mark.usefixtures("clean_home")


def lines(box):
    """One line of pixels across each side, at its middle."""
    x, y = box.centre
    way = range(-NEAR, NEAR)
    return {
        "left": [(box.x + step, y) for step in way],
        "right": [(box.right + step, y) for step in way],
        "top": [(x, box.y + step) for step in way],
        "bottom": [(x, box.bottom + step) for step in way],
    }


def ring(before, after, line):
    """The colours beside the pixels that became blue on this line; None if none did."""
    shades = [after.pixel(*at) for at in line]
    new = [i for i, at in enumerate(line)
           if shades[i] == colours.BLUE != before.pixel(*at)]
    if len(new) < THICKNESS:
        return None
    return shades[new[0] - 1], shades[new[-1] + 1]


def rings(before, focus):
    after = Picture()
    found = {side: ring(before, after, line) for side, line in lines(focus.box).items()}
    return {side: shades for side, shades in found.items() if shades}


def check(before, focus):
    # At the active tab's bottom is its own bar, as blue as the ring.
    wanted = 3 if "selected" in focus.states else 4
    found = until(lambda: len(rings(before, focus)) >= wanted and rings(before, focus),
                  f"a ring around {focus.name!r}")
    weak = {side: shades for side, shades in found.items()
            if min(contrast(colours.BLUE, shade) for shade in shades) < WEAKEST}
    assert weak == {}, focus


@pytest.mark.parametrize("tab", TABS)
def test_ring_around_every_control(panel, tab):
    panel.resize(1000, 1150)
    panel.show(tab)
    if tab == "Settings":
        # Without a key, Save & Connect cannot have the focus.
        settings.fill(panel, settings.KEY, "k")
    panel.focus_on("button", "Close")
    hands.park()
    Picture.settled()
    seen = []
    while ("button", "Close") not in seen:
        # Not settled: in a field the cursor blinks.
        before, focus = Picture(), panel.focus()
        hands.key("Tab")
        focus = until(lambda: panel.focus() not in (focus, None) and panel.focus(), "the next")
        check(before, focus)
        seen.append((focus.role, focus.name))
    # Two badges, five tabs, the window's three buttons, and what the tab itself has.
    assert len(seen) == 10 + {"Dashboard": 5, "Settings": 9}.get(tab, 1)


@pytest.mark.parametrize("tab", ["Dashboard", "Settings"])
def test_ring_around_a_page_that_scrolls(panel, tab):
    panel.resize(1000, 700)
    panel.show(tab)
    panel.focus_on("button", "Close")
    hands.park()
    before = Picture.settled()
    check(before, panel.press_until_focused("group", tab))
