# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Where the tab's four cards are, and what is on them."""

import pytest

from harness import colours, hands, settings
from harness.screen import Picture
from harness.settings import BROWSE, SAVE, START, STOP
from harness.window import Box

CARDS = ("Agent Status", "Quick Setup", "Advanced Configuration", "Config File Locations")
LOCATIONS = (
    ("~/.config/quillmark/config.toml", "Recommended - User configuration"),
    ("/Library/Quillmark/config.toml", "macOS system configuration"),
    ("/etc/quillmark/config.toml", "System-wide configuration"),
)


def card_of(tree, name):
    return tree.find("group", name) or tree.find("list", name)


@pytest.fixture(scope="module")
def shown(panel):
    settings.clean_home()
    panel.resize(1000, 1150)
    settings.enter(panel)
    return panel


@pytest.fixture(scope="module")
def tree(shown):
    hands.park()
    return shown.tree.read()


@pytest.fixture(scope="module")
def picture(tree):
    return Picture()


def near(values, wanted):
    """To a pixel: extents are rounded."""
    assert len(values) == len(wanted)
    assert all(abs(v - w) <= 1 for v, w in zip(values, wanted)), (values, wanted)


def test_cards_in_order_twenty_apart(tree):
    page = tree.find("group", "Settings")
    assert [c.name for c in page.children if c.role in ("group", "list")] == list(CARDS)
    boxes = [card_of(page, name).box for name in CARDS]
    near([b.y - a.bottom for a, b in zip(boxes, boxes[1:])], [20, 20, 20])
    near([boxes[0].y - page.box.y], [20])
    for box in boxes:
        near([box.x - page.box.x, page.box.right - box.right], [20, 20])


@pytest.mark.parametrize("name", CARDS)
def test_card_is_white_with_a_border_and_a_title(tree, picture, name):
    card = card_of(tree, name).box
    title = card_of(tree, name).find("text", name).box
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
