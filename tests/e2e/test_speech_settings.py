# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a screen reader says of the Settings tab."""

import pytest

from harness import hands, settings
from harness.screen_reader import expected, group_words, list_words, password_words
from harness.settings import BROWSE, DEFAULT_URL, KEY, SAVE, SERVER, STOP

HINT = "Paste your API key here"
URL = f"{DEFAULT_URL}."


@pytest.fixture
def panel(spoken_panel, screen_reader, clean_home):
    settings.enter(spoken_panel)
    spoken_panel.focus_on("tab", "Settings")
    screen_reader.hear("Settings page tab.", "Selected.")
    screen_reader.forget()
    return spoken_panel


def test_the_page_is_not_read_whole(panel, screen_reader):
    screen_reader.press("Tab")
    screen_reader.hear("Settings section.")
    screen_reader.press("Tab")
    screen_reader.hear_only(*group_words("Agent Status", "Agent is not running"),
                            "Start Agent push button.")


def test_fields_say_label_kind_and_value_once(panel, screen_reader):
    panel.focus_on(*STOP)
    screen_reader.hear("Stop Agent push button.")
    screen_reader.press("Tab")
    said = screen_reader.hear_about("Server URL")
    assert said.count(expected("Server URL text.")) == said.count(expected(URL)) == 1
    screen_reader.press("Tab")
    screen_reader.hear_only("API Key panel.", *password_words(HINT))


def test_locations_are_read_one_by_one(panel, screen_reader):
    settings.focus_on(panel, BROWSE)
    screen_reader.hear("Browse and Import Config push button.")
    screen_reader.press("Tab")
    screen_reader.hear_only(
        "Config File Locations.", list_words(3, in_view=2),
        "~/.config/quillmark/config.toml, Recommended - User configuration.")
    screen_reader.press("Tab")
    screen_reader.hear_only("/Library/Quillmark/config.toml, macOS system configuration.")


def test_a_key_that_is_typed_is_not_spoken(panel, screen_reader):
    panel.focus_on(*KEY)
    screen_reader.hear(*password_words(HINT))
    screen_reader.forget()
    hands.write("qzj")
    screen_reader.press("Tab")
    screen_reader.hear("Save & Connect push button.")
    screen_reader.press("shift+Tab")
    said = screen_reader.hear("API Key panel.", *password_words("Filled in", "●●●"))
    assert not [words for words in said if set("qzj") & set(words)]


def test_the_outcome_of_saving_is_spoken_each_time(panel, screen_reader):
    settings.fill(panel, KEY, "qm-1")
    panel.focus_on(*SAVE)
    for _ in range(2):
        screen_reader.press("space")
        screen_reader.hear(f"notification {settings.SAVED}")
    assert panel.focus().name == "Save & Connect"


def test_a_failure_is_spoken(panel, screen_reader):
    # A folder in the place of the file.
    settings.CONFIG.mkdir(parents=True)
    settings.fill(panel, SERVER, "https://a.example")
    settings.fill(panel, KEY, "qm-1")
    panel.focus_on(*SAVE)
    screen_reader.press("space")
    screen_reader.hear_all("notification ❌ Error: ")


def test_stopping_without_an_agent_says_that_none_runs(panel, screen_reader):
    panel.focus_on(*STOP)
    screen_reader.press("space")
    screen_reader.hear("notification Agent is not running.")
