# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Every control, used with the keyboard only and with assistive actions only."""

import pytest

from harness import bodies, hands, picker, settings
from harness.cards import TITLES
from harness.lists import listed
from harness.panel import TABS
from harness.settings import BROWSE, KEY, SAVE, SERVER, START, STOP
from harness.waiting import until

BADGES = [("group", "Status: OK"), ("group", "Threats: 1")]
BAR = [("tab", name) for name in TABS]
WINDOW = [("button", name) for name in ("Minimize", "Maximize", "Close")]
CARDS = [("group", f"{title}: {value}") for title, value in zip(TITLES, (2, 2, 1, 3, 2))]
LOCATIONS = [("row", "~/.config/quillmark/config.toml, Recommended - User configuration"),
             ("row", "/Library/Quillmark/config.toml, macOS system configuration"),
             ("row", "/etc/quillmark/config.toml, System-wide configuration")]
# The items of each tab that the Tab key reaches when the API key is filled in.
CONTENT = {
    "Dashboard": [("group", "Dashboard"), *CARDS],
    "Network": [("row", "127.0.0.1:7823, → 10.0.0.5:443, ESTABLISHED")],
    "Inventory": [("row", "Files, v43.2")],
    "Alerts": [("row", "high: malware, A bad file")],
    "Settings": [("group", "Settings"), START, STOP, SERVER, KEY, SAVE, BROWSE, *LOCATIONS],
}
# Those that assistive technology can give the focus, in addition.
MORE = {
    "Network": [("list", "Network connections"),
                ("row", "127.0.0.1:22, → 10.0.0.5:443, LISTEN"),
                ("row", "127.0.0.1:80, → 10.0.0.5:443, ESTABLISHED")],
    "Inventory": [("list", "Installed applications"), ("row", "Terminal")],
    "Alerts": [("list", "Security alerts"), ("row", "low: policy")],
}


@pytest.fixture(scope="module", autouse=True)
def live(panel):
    settings.clean_home()
    panel.tree.wait_for("text", "OK")
    yield
    settings.clean_home()


@pytest.fixture
def settings_tab(panel):
    settings.clean_home()
    settings.enter(panel)
    return panel


def chain(panel):
    """All items that the Tab key reaches, until the first one again."""
    walked = []
    focus = panel.press_until_focused(*BADGES[0])
    while len(walked) < 30:
        if (focus.role, focus.name) == BADGES[0] and walked:
            return walked
        walked.append((focus.role, focus.name))
        focus = panel.press_to_move("Tab", focus)
    raise AssertionError(f"the focus does not return to the first item: {walked}")


@pytest.mark.parametrize("tab", TABS)
def test_tab_key_follows_the_reading_order(panel, tab):
    panel.show(tab)
    if tab == "Settings":
        settings.fill(panel, KEY, "k")
    # The window's own buttons come last; those of a desktop's frame would not be here.
    assert chain(panel) == BADGES + BAR + CONTENT[tab] + WINDOW


def focusable(tree):
    return [(i.role, i.name) for i in tree.walk()
            if "focusable" in i.states and i.role not in ("window", "text")]


@pytest.mark.parametrize("tab", TABS)
def test_items_that_assistive_technology_can_focus(panel, tab):
    panel.show(tab)
    if tab == "Settings":
        settings.fill(panel, KEY, "k")
    # So high that there is nothing to scroll.
    panel.resize(1000, 1150)
    pages = [("group", "Dashboard"), ("group", "Settings")]
    content = [which for which in CONTENT[tab] if which not in pages] + MORE.get(tab, [])
    until(lambda: sorted(focusable(panel.tree.read())) == sorted(BADGES + BAR + content + WINDOW),
          "these and no others to be focusable")
    panel.resize(1000, 700)


@pytest.mark.parametrize("tab", [*TABS[1:], "Dashboard"])
def test_tabs_by_action(panel, tab):
    panel.tree.act(panel.tree.find("tab", tab), "Press")
    panel.selected(tab)


@pytest.mark.parametrize("which", [BADGES[0], SERVER, KEY, START])
def test_focus_by_action(settings_tab, which):
    settings_tab.tree.act(settings_tab.tree.find(*which), "SetFocus")
    until(lambda: (settings_tab.focus().role, settings_tab.focus().name) == which, "the focus")


def test_lists_scroll_by_action(panel, backend):
    backend.reply(network=bodies.network(*[bodies.connection(str(n)) for n in range(200)]))
    backend.wait_for_poll()
    panel.show("Network")
    name = "Network connections"
    first = lambda: listed(panel, name)[1][0].name  # noqa: E731
    top = until(first, "rows")
    panel.tree.act(panel.tree.find("list", name), "Next Page")
    until(lambda: first() != top, "the next page")
    panel.tree.act(panel.tree.find("list", name), "Previous Page")
    until(lambda: first() == top, "the page before")


def press(panel, which):
    panel.tree.act(panel.tree.find(*which), "Press")


def test_settings_by_action(settings_tab):
    panel = settings_tab
    settings.fill(panel, KEY, "qm-1")
    press(panel, SAVE)
    settings.wait_for_message(panel, settings.SAVED)
    press(panel, BROWSE)
    until(lambda: picker.shown(panel), "the dialog")
    hands.key("Escape")
    picker.wait_until_closed(panel)


def test_disabled_button_is_described_as_unavailable(settings_tab):
    panel = settings_tab
    save = panel.tree.find(*SAVE)
    assert "focusable" not in save.states
    assert panel.tree.description(save) == "Unavailable"
    settings.fill(panel, KEY, "k")
    save = panel.tree.find(*SAVE)
    assert "focusable" in save.states
    assert panel.tree.description(save) == ""


def test_window_by_action(panel):
    window = panel.window
    panel.tree.act(panel.tree.find("button", "Maximize"), "Press")
    until(lambda: "MAXIMIZED_VERT" in window.states(), "the window to be maximised")
    panel.tree.act(panel.tree.wait_for("button", "Restore"), "Press")
    until(lambda: window.box[2:] == (1000, 700), "the former size")
    panel.tree.act(panel.tree.wait_for("button", "Minimize"), "Press")
    until(lambda: "HIDDEN" in window.states(), "the window to be minimised")
    window.restore()


def test_a_change_of_the_status_is_announced(panel, backend):
    badge = panel.tree.wait_for(*BADGES[0])
    event = (badge.address, "PropertyChange", "accessible-name")
    assert panel.tree.description(badge) == "Healthy"
    heard = panel.tree.listen()
    backend.reply(status=bodies.status(status="warning"))

    def announced():
        panel.tree.read()
        return event in [(*what, values[0]) for *what, values in heard]

    until(announced, "the new status")
    status = panel.tree.wait_for("group", "Status: WARNING")
    assert panel.tree.description(status) == "Needs attention"
    backend.reply(status=bodies.status(threat_count=1))
    panel.tree.wait_for(*BADGES[0])
