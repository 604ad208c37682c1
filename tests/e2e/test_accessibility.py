# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Assistive technology gets everything that is visible, under its own text."""

import pytest

from harness.lists import names

HEADER = ["Quillmark Agent", "Endpoint Detection & Response", "Status", "OK", "Threats", "1",
          "Last Scan", "1/15/24, 10:30 AM"]
TABS = ["Dashboard", "Network", "Inventory", "Alerts", "Settings"]
ADDRESSES = ["127.0.0.1:7823", "127.0.0.1:22", "127.0.0.1:80"]

CONTENT = {
    "Dashboard": [
        "Installed Applications", "2", "Active Services", "2", "Network Interfaces", "1",
        "Active Network Connections", "3", "Recent Alerts", "2",
    ],
    "Network": [*ADDRESSES, *["→ 10.0.0.5:443"] * 3, "ESTABLISHED", "LISTEN", "ESTABLISHED"],
    "Inventory": ["Files", "v43.2", "Terminal"],
    "Alerts": ["malware", "A bad file", "policy"],
    "Settings": [
        "Agent Status", "Agent is not running", "Start Agent", "Stop Agent",
        "Quick Setup", "Paste your API key from the dashboard to connect", "Server URL",
        "API Key", "Save & Connect",
        "Get your API key from: https://console.quillmark.example/agent/start",
        "Advanced Configuration", "Import config.toml",
        "Select your config.toml file to configure the agent", "Browse and Import Config",
        "Config File Locations",
        "~/.config/quillmark/config.toml", "Recommended - User configuration",
        "/Library/Quillmark/config.toml", "macOS system configuration",
        "/etc/quillmark/config.toml", "System-wide configuration",
    ],
}
LISTS = {
    "Network": ("Network connections", [
        "127.0.0.1:7823, → 10.0.0.5:443, ESTABLISHED",
        "127.0.0.1:22, → 10.0.0.5:443, LISTEN",
        "127.0.0.1:80, → 10.0.0.5:443, ESTABLISHED",
    ]),
    "Inventory": ("Installed applications", ["Files, v43.2", "Terminal"]),
    "Alerts": ("Security alerts", ["high: malware, A bad file", "low: policy"]),
}


@pytest.fixture(autouse=True)
def filled(panel):
    panel.resize(1000, 1150)
    panel.tree.wait_for("text", "OK")


@pytest.mark.parametrize("tab", TABS)
def test_texts(panel, tab):
    panel.show(tab)
    assert sorted(panel.tree.read().texts()) == sorted(HEADER + TABS + CONTENT[tab])


@pytest.mark.parametrize("tab", TABS)
def test_controls(panel, tab):
    panel.show(tab)
    tree = panel.tree.read()
    (bar,) = tree.every("tab list")
    assert [t.name for t in bar.every("tab")] == TABS == [t.name for t in tree.every("tab")]
    assert [t.name for t in tree.every("tab") if "selected" in t.states] == [tab]
    buttons = {b.name for b in tree.every("button")} - {"Minimize", "Maximize", "Close"}
    assert buttons == ({"Start Agent", "Stop Agent", "Save & Connect", "Browse and Import Config"}
                       if tab == "Settings" else set())
    # Every item that can have the focus has a name.
    assert all(i.name for i in tree.walk() if i.role in ("tab", "button", "list", "row"))


@pytest.mark.parametrize("tab", LISTS)
def test_rows(panel, tab):
    panel.show(tab)
    name, rows = LISTS[tab]
    assert [found.name for found in panel.tree.read().every("list")] == [name]
    assert names(panel, name) == rows


def test_every_item_is_inside_the_window(panel):
    window = panel.window.box
    for tab in TABS:
        panel.show(tab)
        for item in panel.tree.read().walk():
            if item.role in ("text", "tab", "button", "list"):
                assert window.holds(item.box), item
