# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The tab in a window that is too small for it."""

import pytest

from harness import hands, settings
from harness.settings import BROWSE, KEY, SAVE, SERVER, START, STOP
from harness.waiting import until

FIRST = ("text", "Agent Status")
LAST = ("text", "System-wide configuration")
CARDS = ("Agent Status", "Quick Setup", "Advanced Configuration", "Config File Locations")


@pytest.fixture(autouse=True)
def small(panel):
    settings.clean_home()
    panel.resize(1000, 700)
    settings.enter(panel)
    assert in_view(panel, FIRST) and not in_view(panel, LAST)
    yield
    settings.clean_home()


def page(panel):
    return panel.tree.find("group", "Settings")


def in_view(panel, which, seen=None):
    seen = seen or page(panel)
    found = seen.find(*which)
    return found and seen.box.holds(found.box) and found


def seen_on_the_way(panel, step, goal):
    """Calls `step` until the goal is in view; returns the cards whose titles were seen."""
    seen = set()
    for _ in range(30):
        before = page(panel)
        seen |= {name for name in CARDS if in_view(panel, ("text", name), before)}
        if in_view(panel, goal, before):
            return seen
        step()
        until(lambda: page(panel) != before, "the page to move")
    raise AssertionError(f"{goal} was not reached")


def test_wheel_reaches_all_cards(panel):
    box = page(panel).box
    assert seen_on_the_way(panel, lambda: hands.wheel_down(box, 1), LAST) == set(CARDS)
    seen_on_the_way(panel, lambda: hands.wheel_up(box, 1), FIRST)


@pytest.mark.parametrize("down, up", [("Down", "Up"), ("Next", "Prior"), ("End", "Home")])
def test_keys_reach_all_cards(panel, down, up):
    panel.focus_on("group", "Settings")
    seen = seen_on_the_way(panel, lambda: hands.key(down), LAST)
    assert down == "End" or seen == set(CARDS)
    seen_on_the_way(panel, lambda: hands.key(up), FIRST)


@pytest.mark.parametrize("key, order", [
    ("Tab", (START, STOP, SERVER, KEY, SAVE, BROWSE)),
    ("shift+Tab", (BROWSE, SAVE, KEY, SERVER, STOP, START)),
])
def test_focus_stays_in_view(panel, key, order):
    settings.fill(panel, KEY, "k")
    panel.focus_on("tab", "Settings")
    for control in order:
        panel.press_until_focused(*control, key=key)
        until(lambda: in_view(panel, control), f"{control} in view")


def test_typing_in_the_lowest_field_of_a_low_window(panel):
    panel.press_until_focused(*KEY)
    hands.write("k")
    until(lambda: in_view(panel, KEY), "the key's field in view")


def test_wheel_over_a_field_scrolls_the_page(panel):
    before = page(panel).find(*SERVER).box
    hands.wheel_down(before, 2)
    until(lambda: page(panel).find(*SERVER).box.y < before.y, "the page to scroll")
    assert settings.field(panel, SERVER) == settings.DEFAULT_URL


def test_polls_do_not_move_the_page(panel, backend):
    hands.wheel_down(page(panel).box, 3)
    seen = []

    def still():
        seen.append(page(panel))
        return len(seen) > 1 and seen[-1] == seen[-2] and seen[-1]

    before = until(still, "the page to stop moving", step=0.2)
    backend.wait_for_poll()
    assert page(panel) == before
