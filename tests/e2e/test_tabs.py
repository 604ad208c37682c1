# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Choosing tabs by pointer and by keyboard."""

import pytest

from harness import bodies, colours, hands
from harness.backend import ENDPOINTS
from harness.lists import listed
from harness.panel import TABS
from harness.screen import Picture
from harness.waiting import until
from harness.window import Box


# One text or list that only this tab shows.
SIGNS = {
    "Dashboard": ("text", "Recent Alerts"),
    "Network": ("list", "Network connections"),
    "Inventory": ("list", "Installed applications"),
    "Alerts": ("list", "Security alerts"),
    "Settings": ("group", "Quick Setup"),
}


@pytest.fixture(scope="module", autouse=True)
def filled(panel):
    panel.resize(1000, 1000)
    panel.tree.wait_for("text", "Installed Applications")


def shows_only(panel, tab):
    """Only this tab is selected, and only its sign is shown."""
    def as_it_should():
        tree = panel.tree.read()
        selected = [t.name for t in tree.every("tab") if "selected" in t.states]
        signs = [name for name, sign in SIGNS.items() if tree.find(*sign)]
        return selected == [tab] and signs == [name for name in SIGNS if name == tab]

    until(as_it_should, f"{tab} alone")


def test_dashboard_first(panel):
    shows_only(panel, "Dashboard")


@pytest.mark.parametrize("tab", [*TABS[1:], "Dashboard", "Dashboard"])
def test_click(panel, tab):
    hands.click(panel.tree.find("tab", tab).box)
    shows_only(panel, tab)


@pytest.mark.parametrize("tab", [*reversed(TABS), "Network"])
def test_shortcut(panel, tab):
    hands.key(f"ctrl+{TABS.index(tab) + 1}")
    shows_only(panel, tab)


def test_tab_key_reaches_every_tab(panel):
    for tab in TABS:
        panel.press_until_focused("tab", tab)


def test_shift_tab_goes_back(panel):
    panel.focus_on("tab", "Network")
    panel.press_until_focused("tab", "Dashboard", key="shift+Tab", most=1)


@pytest.mark.parametrize("tab, press", [
    ("Inventory", "space"), ("Alerts", "Return"), ("Network", "space"),
])
def test_key_chooses_the_focused_tab(panel, tab, press):
    panel.focus_on("tab", tab)
    hands.key(press)
    shows_only(panel, tab)


@pytest.mark.parametrize("press, tab", [
    ("Right", "Inventory"), ("Left", "Dashboard"), ("End", "Settings"), ("Home", "Dashboard"),
])
def test_keys_in_the_tab_bar_choose_a_tab(panel, press, tab):
    panel.show("Network")
    panel.focus_on("tab", "Network")
    hands.key(press)
    shows_only(panel, tab)
    until(lambda: (panel.focus().role, panel.focus().name) == ("tab", tab), "the focus on it")


def test_neighbouring_tabs_from_anywhere(panel):
    panel.show("Inventory")
    panel.focus_on(*SIGNS["Inventory"])
    hands.key("ctrl+Next")
    shows_only(panel, "Alerts")
    hands.key("ctrl+Prior", "ctrl+Prior", "ctrl+Prior")
    shows_only(panel, "Dashboard")
    # There is none before the first, nor after the last.
    hands.key("ctrl+Prior", "ctrl+5", "ctrl+Next")
    shows_only(panel, "Settings")


@pytest.mark.parametrize("press", ["F5", "ctrl+r", "F1", "Escape", "F11", "BackSpace"])
def test_other_keys_do_nothing(panel, backend, press):
    panel.show("Alerts")
    before = panel.tree.read()
    backend.wait_for_poll()
    asked = len(backend.seen("status"))
    hands.key(press)
    panel.focus_on("tab", "Alerts")
    assert len(backend.seen("status")) - asked <= 1
    shows_only(panel, "Alerts")
    assert panel.tree.read().texts() == before.texts()
    assert panel.window.box[2:] == (1000, 1000)


def test_click_gives_a_list_the_focus(panel, backend):
    backend.reply(network=bodies.network(*[bodies.connection(str(n)) for n in range(200)]))
    backend.wait_for_poll()
    panel.show("Network")
    panel.focus_on("tab", "Network")
    found = panel.tree.wait_for("list", "Network connections")
    hands.click(found.box)
    row = until(lambda: panel.focus() and panel.focus().role == "row" and panel.focus(),
                "a row to have the focus")
    hands.park()
    edge = Box(row.box.x + 40, row.box.bottom - 4, 400, 4)
    assert colours.BLUE not in Picture().colours(edge), "no ring after a click"
    first = listed(panel, "Network connections")[1][0].name
    hands.key("Next")
    until(lambda: listed(panel, "Network connections")[1][0].name != first, "Page Down to scroll")
    # Reached by Tab, it has one.
    hands.key("shift+Tab")
    row = panel.press_until_focused("list", "Network connections")
    edge = Box(row.box.x + 40, row.box.bottom - 4, 400, 4)
    until(lambda: colours.BLUE in Picture().colours(edge), "the ring")


@pytest.mark.parametrize("tab", ["Network", "Inventory", "Alerts"])
def test_tab_key_reaches_the_list(panel, tab):
    panel.show(tab)
    panel.press_until_focused(*SIGNS[tab])


def test_focus_is_visible(panel):
    panel.press_until_focused("tab", "Settings")
    box = panel.tree.find("tab", "Settings").box
    around = Box(box.x - 3, box.y - 3, box.width + 6, box.height + 6)
    focused = list(Picture().pixels(around))
    panel.press_until_focused("tab", "Alerts", key="shift+Tab", most=1)
    until(lambda: list(Picture().pixels(around)) != focused, "the focus to be drawn")


def test_tab_shows_the_latest_data_without_a_request(panel, backend):
    panel.show("Settings")
    backend.reply(network=bodies.network(bodies.connection("9999")))
    backend.wait_for_poll()
    panel.show("Network")
    panel.tree.wait_for("row", "127.0.0.1:9999, → 10.0.0.5:443, ESTABLISHED")
    asked = [r.endpoint for r in backend.seen()]
    complete = len(asked) // 4 * 4
    # Nothing but whole polls, however often tabs were switched.
    assert asked[:complete] == list(ENDPOINTS) * (complete // 4)
