# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The file that Save & Connect writes, and its message."""

import os

from harness import colours, settings
from harness.screen import Picture
from harness.settings import CONFIG, HOME, KEY, SAVE, SERVER
from harness.waiting import until
from harness.window import Box

HOST = os.uname().nodename


def save(panel, key, server=None):
    if server is not None:
        settings.fill(panel, SERVER, server)
    settings.fill(panel, KEY, key)
    settings.press(panel, SAVE)


def saved(panel, key, server=None):
    save(panel, key, server)
    settings.wait_for_message(panel, settings.SAVED)
    return CONFIG.read_bytes().decode()


def test_file_has_what_was_typed_and_what_is_of_this_machine(tab):
    # Nothing is trimmed, escaped or checked.
    text = saved(tab, ' a"b\\c ', "no url at all")
    assert text.startswith(f'[agent]\nagent_id = "macos-{HOST}-')
    assert f"""\nmachine_identifier = "{HOST}"
server_url = "no url at all"
api_key = " a"b\\c "
dev_mode = false\n""" in text
    assert text.endswith(f'\naudit_path = "{HOME}/.quillmark/logs/audit.log"')


def test_success_is_green(tab):
    saved(tab, "k")
    assert_row(tab, settings.SAVED, colours.GREEN, colours.SUCCESS_TINT)


def test_failure_is_red_and_the_next_success_replaces_it(tab):
    CONFIG.parent.parent.mkdir()
    CONFIG.parent.write_text("in the way")
    save(tab, "k")
    failure = until(lambda: settings.message(tab), "a message")
    assert failure == "❌ Error: Not a directory"
    assert_row(tab, failure, colours.RED, colours.ERROR_TINT)
    assert CONFIG.parent.read_text() == "in the way"

    CONFIG.parent.unlink()
    settings.press(tab, SAVE)
    settings.wait_for_message(tab, settings.SAVED)
    assert_row(tab, settings.SAVED, colours.GREEN, colours.SUCCESS_TINT)


def assert_row(panel, text, ink, ground):
    """The message with its icon, on its tint, in view."""
    settings.bring_into_view(panel, "text", text)
    box = panel.tree.find("text", text).box
    # Its first character is an emoji in colours of its own.
    words = Box(box.x + 20, box.y, box.width - 20, box.height)
    icon = Box(box.x - 8 - 11, box.centre[1] - 6, 11, 12)
    picture = Picture()
    assert picture.pixel(box.right - 2, box.y - 6) == ground
    assert picture.ink(words, ink, ground) > 0.65
    assert picture.ink(icon, ink, ground) > 0.65
    assert picture.pixel(box.x - 8 - 11 - 6, box.centre[1]) == ground
