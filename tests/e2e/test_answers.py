# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What one panel shows as the backend's answers change from poll to poll."""

import pytest

from harness import bodies
from harness.cards import cards
from harness.exchange import answer
from harness.waiting import until

OFFLINE_DASHBOARD = {
    "Quillmark Agent", "Endpoint Detection & Response",
    "Status", "OFFLINE", "Threats", "0",
    "Dashboard", "Network", "Inventory", "Alerts", "Settings",
    "Active Network Connections", "Recent Alerts",
}


@pytest.fixture(scope="module", autouse=True)
def every_card_in_view(panel):
    panel.resize(1000, 1000)


@pytest.fixture(autouse=True)
def good_before(panel, backend):
    """Each test begins with a panel that shows a live agent."""
    backend.reply(**bodies.everyday())
    panel.tree.wait_for("text", "Installed Applications")
    panel.tree.wait_for("text", "OK")


def offline(panel):
    return set(panel.tree.read().texts()) == OFFLINE_DASHBOARD


def test_undecodable_network_body_does_not_affect_the_others(panel, backend):
    assert cards(panel)["Active Network Connections"] == "3"
    backend.reply(
        status=bodies.status(threat_count=7),
        alerts=bodies.alerts(*[bodies.alert()] * 9),
        network=bodies.network(bodies.connection(), bodies.connection(local_port=443)),
        inventory=bodies.inventory(*[bodies.app()] * 8),
    )
    panel.tree.wait_for("text", "7")
    assert cards(panel) == {
        "Installed Applications": "8",
        "Active Services": "0",
        "Network Interfaces": "0",
        "Active Network Connections": "0",
        "Recent Alerts": "9",
    }


def test_incomplete_status_and_undecodable_inventory(panel, backend):
    incomplete = bodies.status()
    del incomplete["last_scan"]
    backend.reply(
        status=incomplete,
        alerts=bodies.alerts(),
        network=bodies.network(*[bodies.connection()] * 6),
        inventory=bodies.inventory() | {"services": [1]},
    )
    panel.tree.wait_for("text", "OFFLINE")
    assert cards(panel) == {"Active Network Connections": "6", "Recent Alerts": "0"}
    assert not panel.tree.find("text", "Last Scan")


def test_refused_token_looks_like_no_agent(panel, backend):
    refusal = answer({"error": "invalid token"}, code="401 Unauthorized")
    backend.reply(status=refusal, alerts=refusal, network=refusal, inventory=refusal)
    until(lambda: offline(panel), "nothing but an offline agent")


def test_stopped_backend_clears_everything_until_it_is_back(panel, backend):
    backend.stop()
    until(lambda: offline(panel), "the last good data to disappear")
    panel.show("Network")
    panel.tree.wait_for("text", "No network connections detected")
    panel.show("Alerts")
    panel.tree.wait_for("text", "No threats detected")
    panel.show("Dashboard")
    backend.start()
    panel.tree.wait_for("text", "OK")
    assert cards(panel)["Installed Applications"] == "2"
