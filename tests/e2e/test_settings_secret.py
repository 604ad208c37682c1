# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The API key appears nowhere but in the file it is written to."""

import os

import pytest

from harness import hands, processes, settings
from harness.screen import Picture
from harness.settings import KEY, SAVE
from harness.waiting import until

# No part of it occurs in the panel's own texts.
SECRET = "Xq7Zj9Kv"


def pairs(text):
    """Even two consecutive characters must not appear."""
    return [a + b for a, b in zip(text, text[1:])]


def assert_not_readable(panel, heard=()):
    texts = [*panel.tree.words(), *map(repr, heard)]
    assert not [words for words in texts if any(s in words for s in pairs(SECRET))]
    # It is not announced character by character, either.
    announced = [values[3] for _, name, values in heard if name == "TextChanged"]
    assert not [text for text in announced if set(str(text)) & set(SECRET)]


def assert_not_in_processes(panel):
    """Neither in other processes, except the test's own, nor in the output."""
    for process in processes.every():
        if process.pid != os.getpid():
            assert SECRET not in process.command + process.environment, process
    assert SECRET not in panel.output()


def test_typed(tab):
    heard = tab.tree.listen()
    tab.focus_on(*KEY)
    for count, character in enumerate(SECRET, 1):
        hands.write(character)
        until(lambda: settings.field(tab, KEY) == "●" * count, f"{count} dots")
        assert_not_readable(tab)
    # Events are sent before the text can be read, so they have arrived.
    assert heard
    assert_not_readable(tab, heard)
    assert_not_in_processes(tab)


def test_selected_and_cut(tab):
    settings.fill(tab, KEY, SECRET)
    heard = tab.tree.listen()
    hands.key("ctrl+a")
    # A masked field copies nothing to the clipboard.
    hands.key("ctrl+c")
    tab.press_until_focused(*settings.SERVER, key="shift+Tab", most=1)
    hands.key("ctrl+a", "ctrl+v", "End")
    hands.write("!")
    until(lambda: settings.field(tab, settings.SERVER).endswith("!"), "the pasted text")
    assert_not_readable(tab, heard)


def test_saved(tab):
    settings.fill(tab, KEY, SECRET)
    heard = tab.tree.listen()
    settings.press(tab, SAVE)
    settings.wait_for_message(tab, settings.SAVED)
    assert SECRET in settings.CONFIG.read_text()
    assert_not_readable(tab, heard)
    assert_not_in_processes(tab)


def test_read_back(tab):
    settings.write_config(f'[agent]\napi_key = "{SECRET}"\n')
    heard = tab.tree.listen()
    settings.enter(tab)
    until(lambda: settings.field(tab, KEY) == "●" * len(SECRET), "dots")
    assert_not_readable(tab, heard)
    assert_not_in_processes(tab)


def drawn(panel, text):
    settings.fill(panel, KEY, text)
    # Without the focus there is no blinking cursor in the picture.
    panel.focus_on("tab", "Settings")
    hands.park()
    box = panel.tree.find(*KEY).box
    return list(Picture().pixels(box))


def test_picture_shows_only_the_length(tab):
    assert drawn(tab, "iiiiiiii") == drawn(tab, "WWWWWWWW")
    assert drawn(tab, "iiiiiiiii") != drawn(tab, "WWWWWWWW")


@pytest.mark.parametrize("action", [settings.START, settings.STOP])
def test_not_passed_to_programs_that_the_tab_starts(tab, action):
    settings.LOGS.mkdir(parents=True)
    settings.fill(tab, KEY, SECRET)
    settings.press(tab, SAVE)
    settings.wait_for_message(tab, settings.SAVED)
    settings.press(tab, action)
    try:
        if action == settings.START:
            # The port is taken by the tests' backend, so it may end at once.
            until(lambda: (settings.LOGS / "backend.log").exists(), "the agent's log")
            assert SECRET not in (settings.LOGS / "backend.log").read_text()
        assert_not_in_processes(tab)
    finally:
        processes.end_agents()
