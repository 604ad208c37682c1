# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Cards, buttons, fields, rings and the window's frame are symmetric at every scale."""

from itertools import takewhile

import pytest

from harness import cards, colours, hands, settings
from harness.panel import Panel
from harness.screen import Picture
from harness.waiting import until
from harness.window import Box

SCREEN = (2100, 1500)
# How much a curve may differ from its mirror image.
TOLERANCE = 8


# The boxes have their own tests, at every scale.
@pytest.fixture(scope="module", params=[
    ("1", "software"), ("1.25", "software"), ("1.75", "opengl"),
], ids="-".join)
def sight(request, display, token, backend):
    scale, renderer = request.param
    environment = {} if renderer == "software" else {"QSG_RHI_BACKEND": renderer}
    panel = Panel(QT_SCALE_FACTOR=scale, **environment).opened()
    panel.tree.wait_for("text", "OK")
    yield Sight(panel, float(scale))
    panel.finish()


class Sight:
    """A panel and its pixels. Assistive technology gets unscaled units."""

    def __init__(self, panel, scale):
        self.panel = panel
        self.scale = scale

    def pixels(self, length):
        return round(length * self.scale)

    def assert_even(self, box, corner, margin, colour=None):
        """What is drawn in the box and the margin around it has four corners that
        mirror each other. Nothing else may be there. Waits for the colour if there
        is one, else until drawing has finished."""
        window = self.panel.window.box
        (origin,) = self.panel.tree.read().every("window")
        place = Box(
            window.x + self.pixels(box.x - origin.box.x - margin),
            window.y + self.pixels(box.y - origin.box.y - margin),
            self.pixels(box.width + 2 * margin), self.pixels(box.height + 2 * margin))
        rows = inked(self.showing(colour, place) if colour else settled(), place)
        side = self.pixels(corner)
        first = cut(rows, side)
        across = [row[::-1] for row in rows]
        for name, other in (("right", across), ("bottom", rows[::-1]), ("both", across[::-1])):
            assert difference(first, cut(other, side)) <= TOLERANCE, (name, box)

    def showing(self, colour, place):
        def shown():
            picture = Picture()
            return picture.count(colour, place) > place.width and picture

        return until(shown, f"{colour} to be drawn")


def settled():
    return Picture.settled()


def rows_of(picture, box):
    pixels = list(picture.pixels(box))
    return [pixels[at:at + box.width] for at in range(0, len(pixels), box.width)]


def inked(picture, box):
    """The pixels of what is drawn on the background, row by row."""
    rows = rows_of(picture, box)
    ground = rows[0][0]
    down = [y for y, row in enumerate(rows) if set(row) != {ground}]
    over = [x for x, column in enumerate(zip(*rows)) if set(column) != {ground}]
    assert down and over, box
    return [row[over[0]:over[-1] + 1] for row in rows[down[0]:down[-1] + 1]]


def cut(rows, side):
    return [pixel for row in rows[:side] for pixel in row[:side]]


def difference(one, other):
    return max(abs(a - b) for pair in zip(one, other) for a, b in zip(*pair))


def test_settings(sight):
    panel = sight.panel
    panel.show("Settings")
    settings.bring_into_view(panel, *settings.SAVE)
    hands.park()
    tree = panel.tree.read()
    sight.assert_even(tree.find("group", "Quick Setup").box, corner=11, margin=4)
    sight.assert_even(tree.find(*settings.SAVE).box, corner=11, margin=3)
    sight.assert_even(tree.find(*settings.KEY).box, corner=5, margin=2)
    # A colour, because drawing never finishes: the cursor blinks.
    field = panel.focus_on(*settings.KEY)
    sight.assert_even(field.box, corner=5, margin=2, colour=colours.BLUE)
    button = panel.press_until_focused(*settings.START, key="shift+Tab")
    sight.assert_even(button.box, corner=11, margin=6, colour=colours.BLUE)


def test_dashboard(sight):
    panel = sight.panel
    panel.show("Dashboard")
    hands.park()
    (window,) = panel.tree.read().every("window")
    title, value = (text.box for text in cards.items(panel)[1])
    x, y = title.x - 16, title.y - 16
    card = Box(x, y, window.box.width - 2 * (x - window.box.x), value.bottom + 16 - y)
    sight.assert_even(card, corner=12, margin=8)


def test_focus_ring(sight):
    panel = sight.panel
    panel.press_until_focused("tab", "Inventory")
    hands.park()
    sight.assert_even(panel.tree.find("tab", "Inventory").box, corner=8, margin=0,
                      colour=colours.BLUE)


def test_window_frame(sight):
    window = sight.panel.window.box
    x, y = window.centre
    picture = settled()
    across = [picture.pixel(at, y) for at in range(window.x, window.right)]
    down = [picture.pixel(x, at) for at in range(window.y, window.bottom)]
    colour = across[0]
    lines = [sum(1 for _ in takewhile(colour.__eq__, line))
             for line in (across, across[::-1], down, down[::-1])]
    assert set(lines) == {sight.pixels(1)}, lines
