# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The Dashboard tab's cards."""

import pytest

from harness import bodies, colours, hands
from harness.cards import cards, items
from harness.exchange import silence
from harness.screen import Picture
from harness.waiting import until
from harness.window import Box

pytestmark = pytest.mark.usefixtures("token")


def texts_below_the_tabs(panel):
    tree = panel.tree.read()
    bar = tree.every("tab list")[0].box
    return [i.name for i in tree.every("text") if i.box.y >= bar.bottom]


def test_before_any_data(launch):
    panel = launch({"status": silence()})
    panel.resize(1000, 1000)
    until(lambda: cards(panel), "the cards")
    assert texts_below_the_tabs(panel) == [
        "Active Network Connections", "0", "Recent Alerts", "0",
    ]


def test_counts(launch):
    panel = launch({
        "alerts": bodies.alerts(*[bodies.alert()] * 150),
        "network": bodies.network(*[bodies.connection()] * 1001),
        "inventory": bodies.inventory(
            *[bodies.app()] * 1234, services=["cron"] * 12, interfaces=["lo"],
            permissions=["cap_net_admin"] * 99,
        ),
    })
    panel.resize(1000, 1000)
    panel.tree.wait_for("text", "Installed Applications")
    assert [(t.name, v.name) for t, v in items(panel)] == [
        ("Installed Applications", "1234"),
        ("Active Services", "12"),
        ("Network Interfaces", "1"),
        ("Active Network Connections", "1001"),
        ("Recent Alerts", "150"),
    ]


@pytest.fixture
def empty(launch):
    panel = launch({"inventory": bodies.inventory(), "alerts": bodies.alerts(),
                    "network": bodies.network()})
    panel.tree.wait_for("text", "Installed Applications")
    return panel


def test_empty_inventory_has_its_cards_and_they_fill_the_width(empty):
    for width in (1300, 1000):
        empty.resize(width, 1000)
        until(lambda: len(cards(empty)) == 5, "five cards")
        assert set(cards(empty).values()) == {"0"}
        window = empty.tree.read().every("window")[0].box
        picture = Picture()
        for title, value in items(empty):
            assert title.box.x == value.box.x == window.x + 20 + 16
            card = Box(window.x + 20, title.box.y - 10, width - 40, 50)
            # The card reaches from margin to margin; the margins show the ground.
            for x in (card.x + 3, card.right - 4):
                assert picture.pixel(x, card.centre[1]) == colours.WHITE
            for x in (card.x - 8, card.right + 8):
                assert picture.pixel(x, card.centre[1]) == colours.LAUNCH_GROUND
            assert picture.ink(title.box, colours.GRAY, colours.WHITE) > 0.65
            assert picture.ink(value.box, colours.BLUE, colours.WHITE) > 0.9


def test_cards_higher_than_the_tab_scroll(empty):
    window = empty.window.box
    assert (window.width, window.height) == (1000, 700)

    def last_card_in_view():
        found = empty.tree.find("text", "Recent Alerts")
        return found and found.box.bottom + 16 < window.bottom and found

    assert not last_card_in_view()
    before = empty.tree.find("text", "Installed Applications").box.y
    hands.wheel_down(Box(window.x, window.bottom - 100, window.width, 50), 20)
    assert until(last_card_in_view, "the last card to come into view")
    first = empty.tree.find("text", "Installed Applications")
    assert not first or first.box.y < before
