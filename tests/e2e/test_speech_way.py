# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A user who hears the panel and sees nothing of it, from the start to the end."""

import pytest

from harness import bodies, clipboard, hands, processes, settings, tokens
from harness.panel import TABS
from harness.screen_reader import password_words

ALERTS = [bodies.alert(f"kind {i}", "high", description=f"What happened {i}") for i in range(1, 5)]
URL = "https://console.example"


@pytest.fixture(scope="module")
def token():
    """One that the real agent also accepts."""
    tokens.write(tokens.SYSTEM, "0123456789abcdef" * 4)
    yield
    tokens.remove(tokens.SYSTEM)


@pytest.fixture
def panel(fresh_home, backend, request):
    settings.LOGS.mkdir(parents=True)
    backend.reply(alerts=bodies.alerts(*ALERTS))
    return request.getfixturevalue("spoken_panel")


def test_the_whole_way_by_ear(panel, screen_reader, backend):
    press, hear = screen_reader.press, screen_reader.hear
    hear("Quillmark Agent frame.", "notification Connected to the agent. Status: OK. Threats: 1.")
    for number, tab in list(enumerate(TABS, 1))[1:]:
        press(f"ctrl+{number}")
        hear(f"notification {tab} tab.")

    press("ctrl+4")
    hear("notification Alerts tab.")
    # Backwards from the window's first item, which is the status.
    press("Tab")
    hear("Status: OK section.")
    for words in ("Threats: 1 section.", *(f"{tab} page tab." for tab in TABS),
                  "high: kind 1, What happened 1."):
        press("Tab")
        hear(words)
    for number in (2, 3):
        press("Down")
        hear(f"high: kind {number}, What happened {number}.", f"{number} of 4.")
    press("ctrl+c")
    hear("notification Copied.")
    assert clipboard.text() == "high: kind 3, What happened 3"

    press("ctrl+5")
    screen_reader.hear_announced("notification Settings tab.", "Settings section.")
    for words in ("Start Agent push button.", "Stop Agent push button.", "Server URL text."):
        press("Tab")
        hear(words)
    hands.key("ctrl+a", "BackSpace")
    hands.write(URL)
    press("Tab")
    hear("API Key panel.", *password_words("Paste your API key here"))
    hands.write("qm-1234")
    press("Tab")
    hear("Save & Connect push button.")
    press("space")
    hear(f"notification {settings.SAVED}")
    assert f'server_url = "{URL}"' in settings.CONFIG.read_text()

    backend.stop()  # leaves the port to the agent
    hear("notification Connection to the agent lost.")
    for words in ("API Key panel.", "Server URL text.", "Stop Agent push button.",
                  "Start Agent push button."):
        press("shift+Tab")
        hear(words)
    press("space")
    screen_reader.hear_all("notification Agent is running.",
                           "notification Connected to the agent. ")
    assert processes.agents(), (settings.LOGS / "backend.log").read_text()
    press("Tab")
    hear("Stop Agent push button.")
    press("space")
    screen_reader.hear_all("notification Agent is not running.",
                           "notification Connection to the agent lost.")
