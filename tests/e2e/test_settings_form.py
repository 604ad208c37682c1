# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The enrolment form: what it shows and when it can be sent."""

import pytest

from harness import hands, settings
from harness.settings import DEFAULT_URL, KEY, SAVE, SERVER
from harness.waiting import until


def help_line(panel):
    (found,) = [t for t in panel.tree.read().texts() if t.startswith("Get your API key")]
    return found


def test_first_display_without_a_configuration(tab):
    assert settings.field(tab, KEY) == ""
    assert settings.field(tab, SERVER) == DEFAULT_URL
    settings.assert_save_is(tab, enabled=False)
    assert help_line(tab) == f"Get your API key from: {DEFAULT_URL}/agent/start"
    assert settings.message(tab) == ""
    assert not [t for t in tab.tree.read().texts() if t.startswith("Selected")]


def test_one_character_enables_and_none_disables(tab):
    tab.focus_on(*KEY)
    hands.write("k")
    settings.assert_save_is(tab, enabled=True)
    hands.key("BackSpace")
    settings.assert_save_is(tab, enabled=False)
    # A blank is a character as well.
    hands.key("space")
    settings.assert_save_is(tab, enabled=True)


def test_disabled_button_cannot_be_focused_clicked_or_pressed(tab):
    tab.focus_on(*KEY)
    tab.press_until_focused(*settings.BROWSE, most=1)
    hands.click(tab.tree.find(*SAVE).box)
    tab.focus_on(*KEY)
    tab.tree.press(tab.tree.find(*SAVE))
    hands.write("k")
    settings.assert_save_is(tab, enabled=True)
    assert settings.message(tab) == ""
    assert not settings.CONFIG.exists()


@pytest.mark.parametrize("press", ["space", "Return", "KP_Enter"])
def test_saving_by_keyboard_alone(tab, press):
    settings.fill(tab, SERVER, "https://a.example")
    tab.press_until_focused(*KEY, most=1)
    hands.write("Key-1")
    settings.assert_save_is(tab, enabled=True)
    tab.press_until_focused(*SAVE, most=1)
    hands.key(press)
    settings.wait_for_message(tab, settings.SAVED)
    written = settings.CONFIG.read_text()
    assert 'server_url = "https://a.example"\napi_key = "Key-1"\n' in written


def test_saving_by_pointer_alone(tab):
    hands.click(tab.tree.find(*KEY).box)
    hands.write("k")
    settings.assert_save_is(tab, enabled=True)
    hands.click(tab.tree.find(*SAVE).box)
    settings.wait_for_message(tab, settings.SAVED)


def test_help_line_follows_each_keystroke(tab):
    settings.fill(tab, SERVER, "")
    assert help_line(tab) == "Get your API key from: /agent/start"
    typed = ""
    for character in "https://m.example/?<b>a":
        hands.write(character)
        typed += character
        wanted = f"Get your API key from: {typed}/agent/start"
        until(lambda: help_line(tab) == wanted, wanted)
    hands.key("BackSpace")
    until(lambda: help_line(tab) == f"Get your API key from: {typed[:-1]}/agent/start", "one less")


def test_emptied_server_field_shows_the_default_as_a_hint(tab):
    (gray,) = {settings.hint_colour(tab, KEY)}
    settings.fill(tab, SERVER, "")
    assert settings.hint_colour(tab, SERVER) == gray
    # It is a hint only: nothing puts the default back.
    assert help_line(tab) == "Get your API key from: /agent/start"


def test_typed_text_is_lost_when_the_tab_is_left(tab):
    settings.fill(tab, KEY, "never saved")
    settings.fill(tab, SERVER, "https://never.example")
    settings.enter(tab)
    assert settings.field(tab, KEY) == ""
    assert settings.field(tab, SERVER) == DEFAULT_URL


def test_typing_while_the_window_polls(tab, backend):
    settings.fill(tab, KEY, "half")
    backend.wait_for_poll()
    hands.write("+half")
    until(lambda: settings.field(tab, KEY) == "●" * 9, "the whole key")
    assert tab.focus().role == "password"
