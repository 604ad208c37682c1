# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The fields show the configuration on disk."""

import pytest

from harness import settings
from harness.settings import DEFAULT_URL, KEY, OLD_CONFIG, SERVER
from harness.waiting import until


def shows(panel, key, server):
    """The field shows only the number of the key's characters; the saved file shows
    which they are."""
    settings.enter(panel)
    until(lambda: settings.field(panel, KEY) == "●" * len(key), f"a key of {len(key)}")
    assert settings.field(panel, SERVER) == server
    settings.assert_save_is(panel, enabled=bool(key))
    if key:
        settings.press(panel, settings.SAVE)
        settings.wait_for_message(panel, settings.SAVED)
        assert f'\napi_key = "{key}"\n' in settings.CONFIG.read_text()


@pytest.mark.parametrize("line, key", [
    ('api_key = "your-api-key-here"', ""),
    ('api_key = "ключ <b>é"', "ключ <b>é"),
])
def test_key(tab, line, key):
    settings.write_config(f"[agent]\n{line}\n")
    shows(tab, key, DEFAULT_URL)


@pytest.mark.parametrize("line, server", [
    ('server_url = "https://s.example/?a=b"', "https://s.example/?a"),
    ('server_url = "<img src=x>&amp;"', "<img src"),
])
def test_server(tab, line, server):
    settings.write_config(f"[agent]\n{line}\n")
    shows(tab, "", server)
    assert tab.tree.find("text", f"Get your API key from: {server}/agent/start")


def test_second_path(tab):
    settings.write_config("api_key = 'old'\n", OLD_CONFIG)
    shows(tab, "old", DEFAULT_URL)


def test_saved_values_come_back(tab):
    settings.fill(tab, SERVER, "https://mine.example")
    settings.fill(tab, KEY, "mine")
    settings.press(tab, settings.SAVE)
    settings.wait_for_message(tab, settings.SAVED)
    shows(tab, "mine", "https://mine.example")
    # The message belonged to the tab that was left.
    settings.enter(tab)
    assert settings.message(tab) == ""
