# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a screen reader says when another tab is selected."""

import pytest

from harness import hands
from harness.panel import TABS
from harness.waiting import until

# The item of each tab that gets the focus, and what is said of it.
CONTENT = {
    "Dashboard": ("group", "Dashboard section."),
    "Network": ("row", "127.0.0.1:7823, → 10.0.0.5:443, ESTABLISHED."),
    "Inventory": ("row", "Files, v43.2."),
    "Alerts": ("row", "high: malware, A bad file."),
    "Settings": ("group", "Settings section."),
}


@pytest.fixture(autouse=True)
def panel(spoken_panel):
    spoken_panel.tree.wait_for("text", "OK")
    return spoken_panel


@pytest.mark.parametrize("tab", [*TABS[1:], "Dashboard"])
def test_a_tab_is_spoken_wherever_the_focus_is(panel, screen_reader, tab):
    panel.focus_on("button", "Close")
    screen_reader.press(f"ctrl+{TABS.index(tab) + 1}")
    screen_reader.hear(f"notification {tab} tab.")
    assert panel.focus().name == "Close"


@pytest.mark.parametrize("tab", ["Network", "Inventory", "Alerts", "Settings", "Dashboard"])
def test_the_focus_goes_from_content_to_content(panel, screen_reader, tab):
    role, words = CONTENT[tab]
    before = TABS[TABS.index(tab) - 1]
    panel.show(before)
    panel.focus_on("tab", before)
    screen_reader.hear(f"{before} page tab.")
    panel.tree.act(until(lambda: content(panel, before), before), "SetFocus")
    screen_reader.hear(CONTENT[before][1])
    screen_reader.press(f"ctrl+{TABS.index(tab) + 1}")
    screen_reader.hear_announced(f"notification {tab} tab.", words)
    assert panel.focus().role == role


def content(panel, tab):
    role, words = CONTENT[tab]
    name = words[:-1].removesuffix(" section")
    return panel.tree.find(role, name)


def test_neighbouring_tabs_are_spoken(panel, screen_reader):
    panel.show("Inventory")
    panel.focus_on("list", "Installed applications")
    screen_reader.hear("Files, v43.2.")
    screen_reader.press("ctrl+Next")
    screen_reader.hear_announced("notification Alerts tab.",
                                 "high: malware, A bad file.", "1 of 2.")
    screen_reader.press("ctrl+Prior")
    screen_reader.hear_announced("notification Inventory tab.",
                                 "Files, v43.2.", "1 of 2.")


def test_in_the_tab_bar_the_focus_follows_the_selection(panel, screen_reader):
    panel.show("Dashboard")
    panel.focus_on("tab", "Dashboard")
    screen_reader.hear("Dashboard page tab.", "Selected.")
    for keys, tab in (("Right", "Network"), ("ctrl+4", "Alerts")):
        screen_reader.press(keys)
        # A newer version may announce the first tab only now.
        screen_reader.hear_only(f"{tab} page tab.", "Selected.", newer_also="Dashboard tab")


def test_the_focus_stays_in_the_content_when_its_list_becomes_empty(panel, screen_reader,
                                                                    backend):
    panel.show("Alerts")
    panel.focus_on("list", "Security alerts")
    screen_reader.hear("high: malware, A bad file.")
    backend.reply(alerts={"alerts": []})
    screen_reader.hear("Alerts section.", "No threats detected.")
    hands.key("shift+Tab")
    screen_reader.hear("Settings page tab.")
    screen_reader.press("Tab")
    screen_reader.hear("Alerts section.", "No threats detected.")
