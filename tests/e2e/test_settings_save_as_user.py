# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Saving where an ordinary user may not write."""

import os

import pytest

from harness import settings
from harness.settings import CONFIG

pytestmark = pytest.mark.skipif(os.geteuid() == 0, reason="root may write everywhere")


@pytest.fixture(scope="module")
def token():
    """No token: an ordinary user may not write the system-wide one."""


@pytest.fixture(autouse=True)
def opened():
    yield
    for folder in (CONFIG.parent, CONFIG.parent.parent):
        if folder.exists():
            folder.chmod(0o700)


def save(panel):
    settings.fill(panel, settings.KEY, "new")
    settings.press(panel, settings.SAVE)
    settings.wait_for_message(panel, "❌ Error: Permission denied")


def test_folder_that_cannot_be_created(tab):
    CONFIG.parent.parent.mkdir()
    CONFIG.parent.parent.chmod(0o500)
    save(tab)
    assert not CONFIG.parent.exists()


def test_folder_that_cannot_be_written_keeps_its_file(tab):
    settings.write_config("[agent]\n")
    CONFIG.parent.chmod(0o500)
    save(tab)
    assert CONFIG.read_text() == "[agent]\n"
    assert os.listdir(CONFIG.parent) == ["config.toml"]


def test_unreadable_configuration_does_not_change_the_fields(tab):
    settings.write_config('[agent]\napi_key = "k"\nserver_url = "https://x.example"\n')
    CONFIG.chmod(0o000)
    settings.enter(tab)
    assert settings.field(tab, settings.KEY) == ""
    assert settings.field(tab, settings.SERVER) == settings.DEFAULT_URL
    assert settings.message(tab) == ""
