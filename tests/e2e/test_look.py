# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""How header and tab bar are drawn."""

import pytest

from harness import colours, hands
from harness.panel import TABS
from harness.screen import Picture
from harness.window import Box


@pytest.fixture(scope="module")
def tree(panel):
    panel.tree.wait_for("text", "OK")
    return panel.tree.read()


@pytest.fixture(scope="module")
def picture(tree):
    return Picture()


@pytest.mark.parametrize("text, colour", [
    ("Endpoint Detection & Response", colours.GRAY),
    ("Status", colours.GRAY), ("Threats", colours.GRAY), ("Last Scan", colours.GRAY),
    ("OK", colours.BLACK), ("1", colours.BLACK),
])
def test_header_texts(tree, picture, text, colour):
    box = tree.find("text", text).box
    assert picture.ink(box, colour, colours.WHITE) > 0.65


def test_title(tree, picture):
    window = tree.every("window")[0].box
    title = tree.find("text", "Quillmark Agent").box
    subtitle = tree.find("text", "Endpoint Detection & Response").box
    assert picture.ink(title, colours.BLACK, colours.WHITE) > 0.9
    # 20 of padding, an icon of about 24, 12 of spacing.
    assert 20 + 18 + 12 <= title.x - window.x <= 20 + 32 + 12
    assert title.x == subtitle.x and title.bottom <= subtitle.y
    assert tree.find("text", "Status").box.x - window.x in (20, 21)


def test_shield_left_of_the_title(tree, picture):
    title = tree.find("text", "Quillmark Agent").box
    icon = Box(title.x - 40, title.y - 4, 38, title.height + 26)
    assert picture.ink(icon, colours.BLUE, colours.WHITE) > 0.9


def test_tab_bar_ground_and_order(tree, picture):
    bar = tree.every("tab list")[0]
    tabs = bar.every("tab")
    assert [t.name for t in tabs] == list(TABS)
    for left, right in zip(tabs, tabs[1:]):
        assert abs(left.box.right - right.box.x) <= 1
    free = Box(tabs[-1].box.right + 20, tabs[-1].box.y, 200, tabs[-1].box.height)
    assert picture.colours(free) == {colours.TINT}
    window = tree.every("window")[0].box
    assert tabs[0].box.x - window.x in (20, 21)


def look(panel, name):
    """The colour of a tab's title, and the height of its bar in solid blue."""
    tab = panel.tree.find("tab", name)
    picture = Picture()
    title = tab.find("text", name).box
    colour = colours.BLUE if "selected" in tab.states else colours.GRAY
    assert picture.ink(title, colour, colours.TINT) > 0.65
    row = range(tab.box.x + 4, tab.box.right - 4)
    return tab, sum(
        all(picture.pixel(x, y) == colours.BLUE for x in row)
        for y in range(tab.box.y, tab.box.bottom)
    )


def test_only_the_active_tab_has_a_bar_and_room_for_it(panel):
    panel.show("Dashboard")
    hands.park()
    active, bar = look(panel, "Dashboard")
    other, none = look(panel, "Alerts")
    assert (bar, none) == (3, 0)
    assert active.box.height - other.box.height == 7
    assert abs(active.box.centre[1] - other.box.centre[1]) <= 1

    panel.show("Alerts")
    assert look(panel, "Alerts")[1] == 3
    assert look(panel, "Dashboard")[1] == 0


def test_icons_are_left_of_the_tab_titles(panel):
    for tab in panel.tree.read().every("tab"):
        title = tab.find("text", tab.name).box
        icon = Box(tab.box.x + 10, title.y - 2, title.x - tab.box.x - 12, title.height + 2)
        colour = colours.BLUE if "selected" in tab.states else colours.GRAY
        assert Picture().ink(icon, colour, colours.TINT) > 0.5
