# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Where the tab's four cards and their parts are, and in which colours."""

import pytest

from harness import colours, hands, settings
from harness.screen import Picture
from harness.settings import BROWSE, KEY, SAVE, SERVER, START, STOP
from harness.waiting import until
from harness.window import Box

CARDS = ("Agent Status", "Quick Setup", "Advanced Configuration", "Config File Locations")
LOCATIONS = (
    ("~/.config/quillmark/config.toml", "Recommended - User configuration"),
    ("/Library/Quillmark/config.toml", "macOS system configuration"),
    ("/etc/quillmark/config.toml", "System-wide configuration"),
)


@pytest.fixture(scope="module")
def shown(panel):
    settings.clean_home()
    panel.window.resize(1000, 1150)
    until(lambda: panel.window.box.height == 1150, "a taller window")
    settings.enter(panel)
    return panel


@pytest.fixture(scope="module")
def tree(shown):
    hands.park()
    return shown.tree.read()


@pytest.fixture(scope="module")
def picture(tree):
    return Picture()


def stack(card, *parts):
    """The vertical gaps between a card's parts."""
    boxes = [card.find(*part).box for part in parts]
    return [below.y - above.bottom for above, below in zip(boxes, boxes[1:])]


def near(values, wanted):
    """To a pixel: extents are rounded."""
    assert len(values) == len(wanted)
    assert all(abs(v - w) <= 1 for v, w in zip(values, wanted)), (values, wanted)


def test_cards_in_order_twenty_apart(tree):
    page = tree.find("group", "Settings")
    assert [c.name for c in page.children if c.role == "group"] == list(CARDS)
    boxes = [page.find("group", name).box for name in CARDS]
    near([b.y - a.bottom for a, b in zip(boxes, boxes[1:])], [20, 20, 20])
    near([boxes[0].y - page.box.y], [20])
    for box in boxes:
        near([box.x - page.box.x, page.box.right - box.right], [20, 20])


@pytest.mark.parametrize("name", CARDS)
def test_card_is_white_with_a_border_and_a_title(tree, picture, name):
    card = tree.find("group", name).box
    title = tree.find("group", name).find("text", name).box
    assert picture.pixel(card.x + 6, card.centre[1]) == colours.WHITE
    assert picture.pixel(card.x, card.centre[1]) == colours.SECTION_BORDER
    assert picture.pixel(card.centre[0], card.y) == colours.SECTION_BORDER
    assert picture.pixel(card.x - 2, card.centre[1]) == colours.TINT
    # A rounded corner shows what is behind the card.
    assert picture.pixel(card.x, card.y) == colours.TINT
    near([title.y - card.y], [12])
    assert picture.ink(title, colours.BLACK, colours.WHITE) > 0.9
    icon = Box(card.x + 12, title.y, title.x - card.x - 12 - 8, title.height)
    assert 15 <= icon.width <= 22
    assert picture.ink(icon, colours.BLUE, colours.WHITE) > 0.65


def test_agent_card(tree, picture):
    card = tree.find("group", "Agent Status")
    line = ("text", settings.NOT_RUNNING)
    near(stack(card, ("text", "Agent Status"), line, START), [8, 8])
    start, stop = card.find(*START).box, card.find(*STOP).box
    near([stop.x - start.right, stop.width - start.width, stop.y - start.y], [8, 0, 0])
    near([start.x - card.box.x, card.box.right - stop.right, card.box.bottom - stop.bottom],
         [12, 12, 12])
    assert card.find(*line).box.x - card.box.x == 12 + 10 + 8
    assert_button(card.find(*START), picture, colours.GREEN, padding=8)
    assert_button(card.find(*STOP), picture, colours.RED, padding=8)


def test_setup_card(tree, picture):
    card = tree.find("group", "Quick Setup")
    hint = ("text", "Paste your API key from the dashboard to connect")
    help_line = ("text", f"Get your API key from: {settings.DEFAULT_URL}/agent/start")
    parts = [("text", "Quick Setup"), hint, ("text", "Server URL"), SERVER, ("text", "API Key"),
             KEY, SAVE, help_line]
    near(stack(card, *parts), [10, 10, 4, 10, 4, 10, 10])
    near([card.box.bottom - card.find(*help_line).box.bottom], [12])
    for part in (SERVER, KEY, SAVE):
        box = card.find(*part).box
        near([box.x - card.box.x, card.box.right - box.right], [12, 12])
    for text in (hint, ("text", "Server URL"), ("text", "API Key")):
        assert picture.ink(card.find(*text).box, colours.GRAY, colours.WHITE) > 0.65
    assert picture.ink(card.find(*help_line).box, colours.BLUE, colours.WHITE) > 0.6
    assert_button(card.find(*SAVE), picture, colours.GRAY, padding=10)


def test_advanced_card(tree, picture):
    card = tree.find("group", "Advanced Configuration")
    title = ("text", "Import config.toml")
    hint = ("text", "Select your config.toml file to configure the agent")
    near(stack(card, ("text", "Advanced Configuration"), title, hint, BROWSE), [10, 10, 10])
    near([card.box.bottom - card.find(*BROWSE).box.bottom], [12])
    assert picture.ink(card.find(*title).box, colours.BLACK, colours.WHITE) > 0.8
    assert picture.ink(card.find(*hint).box, colours.GRAY, colours.WHITE) > 0.65
    assert_button(card.find(*BROWSE), picture, colours.BLUE, padding=10)


def test_locations_card(tree, picture):
    card = tree.find("group", "Config File Locations")
    last = None
    for path, description in LOCATIONS:
        above, below = card.find("text", path).box, card.find("text", description).box
        near([below.y - above.bottom], [4])
        near([above.x - below.x - 8, below.x - card.box.x], [13, 12 + 8])
        assert picture.ink(above, colours.BLACK, colours.TINT) > 0.8
        assert picture.ink(below, colours.GRAY, colours.TINT) > 0.65
        icon = Box(below.x, above.y, 13, above.height)
        assert picture.ink(icon, colours.BLUE, colours.TINT) > 0.5
        # The row reaches 8 beyond its texts, and the next begins 8 further on.
        assert picture.pixel(card.box.right - 12 - 2, below.centre[1]) == colours.TINT
        assert picture.pixel(card.box.centre[0], below.bottom + 6) == colours.TINT
        assert picture.pixel(card.box.centre[0], below.bottom + 12) == colours.WHITE
        if last:
            near([above.y - last.bottom], [8 + 8 + 8])
        last = below
    near([card.box.bottom - last.bottom], [12 + 8])


def test_nothing_else_is_on_the_tab(tree):
    page = tree.find("group", "Settings")
    assert sorted(text.name for text in page.every("text")) == sorted([
        *CARDS, settings.NOT_RUNNING, "Start Agent", "Stop Agent",
        "Paste your API key from the dashboard to connect", "Server URL", "API Key",
        "Save & Connect", f"Get your API key from: {settings.DEFAULT_URL}/agent/start",
        "Import config.toml", "Select your config.toml file to configure the agent",
        "Browse and Import Config", *[text for pair in LOCATIONS for text in pair],
    ])
    assert [button.name for button in page.every("button")] == [
        name for _, name in (START, STOP, SAVE, BROWSE)
    ]


def assert_button(button, picture, ground, padding):
    text = button.find("text", button.name).box
    near([text.y - button.box.y, button.box.bottom - text.bottom], [padding, padding])
    assert picture.pixel(button.box.x + 20, button.box.centre[1]) == ground
    assert picture.pixel(button.box.x, button.box.y) == colours.WHITE
    row = Box(text.x - 8 - 14, text.y, text.width + 8 + 14, text.height)
    assert picture.ink(row, colours.WHITE, ground) > 0.8
    # Icon, gap and text together are in the middle.
    assert abs((row.x + row.right) / 2 - (button.box.x + button.box.right) / 2) <= 2
