# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The steps of a user, from no configuration to a running agent and back."""

import pytest

from harness import hands, processes, settings
from harness.cards import cards
from harness.screen import BUILD, save
from harness.settings import CONFIG, LOGS
from harness.waiting import until

pytestmark = pytest.mark.usefixtures("fresh_home")

KEY = "qm-0123-4567"


class Album:
    def __init__(self):
        self.count = 0

    def add(self, panel, name):
        self.count += 1
        hands.park()
        save(BUILD / "pictures" / f"settings-{self.count}-{name}.png", panel.window.box)


def opened(launch_alone):
    panel = launch_alone()
    panel.resize(1000, 1150)
    return panel


def test_the_whole_way(launch_alone):
    album = Album()
    # What an installer makes.
    LOGS.mkdir(parents=True)

    panel = opened(launch_alone)
    panel.tree.wait_for("text", "OFFLINE")
    panel.show("Settings")
    panel.tree.wait_for("text", settings.NOT_RUNNING)
    settings.assert_save_is(panel, enabled=False)
    album.add(panel, "first-run")

    settings.fill(panel, settings.KEY, KEY)
    settings.assert_save_is(panel, enabled=True)
    album.add(panel, "key-typed")

    settings.press(panel, settings.SAVE)
    settings.wait_for_message(panel, settings.SAVED)
    assert f'\napi_key = "{KEY}"\n' in CONFIG.read_text()
    album.add(panel, "saved")

    settings.press(panel, settings.START)
    panel.tree.wait_for("text", settings.RUNNING)
    assert processes.agents()
    album.add(panel, "agent-running")

    # The token is read when a window opens: the first one opened before it existed.
    panel.finish()
    panel = opened(launch_alone)
    until(lambda: panel.tree.find("text", "OK") or panel.tree.find("text", "WARNING"),
          "a live status")
    shown = until(lambda: cards(panel), "the dashboard's cards")
    assert all(value.isdigit() for value in shown.values()) and len(shown) == 5
    # The agent's own port is among the connections of the machine.
    assert int(shown["Active Network Connections"]) >= 1
    album.add(panel, "live-dashboard")

    panel.show("Settings")
    panel.tree.wait_for("text", settings.RUNNING)
    until(lambda: settings.field(panel, settings.KEY) == "●" * len(KEY), "the key read back")
    settings.press(panel, settings.STOP)
    panel.tree.wait_for("text", settings.NOT_RUNNING)
    assert not processes.named()
    album.add(panel, "agent-stopped")

    panel.tree.wait_for("text", "OFFLINE")
    panel.show("Dashboard")
    # Without an agent only the panel's own counts are left.
    until(lambda: cards(panel) == {"Active Network Connections": "0", "Recent Alerts": "0"},
          "an empty dashboard")
    album.add(panel, "offline")
