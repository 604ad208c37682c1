# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Choosing a file in the open dialog, by keyboard alone."""

import stat

import pytest

from harness import colours, hands, picker, settings
from harness.screen import Picture
from harness.settings import BROWSE, CONFIG
from harness.waiting import until

CONTENT = """# [agent] is named only here\r
api_key = "from-file"
server_url = "https://file.example\""""


@pytest.fixture
def folder(tmp_path):
    (tmp_path / "config.toml").write_bytes(CONTENT.encode())
    return tmp_path


def chosen(panel):
    return [t for t in panel.tree.read().texts() if t.startswith("Selected: ")]


def test_dialog_says_what_it_is_for(tab):
    # It is found by its title.
    with picker.opened(tab) as dialog:
        assert {"Import", "Cancel"} <= {b.name for b in dialog.every("button")}


def test_cancelled_by_escape_nothing_changes(tab):
    settings.write_config("[agent]\n")
    settings.fill(tab, settings.KEY, "typed")
    with picker.opened(tab, "Return"):
        pass
    assert settings.message(tab) == "" and not chosen(tab)
    assert settings.field(tab, settings.KEY) == "●" * 5
    assert CONFIG.read_text() == "[agent]\n"
    # The focus is back where it was, and the dialog opens again.
    until(lambda: tab.focus() and (tab.focus().role, tab.focus().name) == BROWSE, "the focus back")
    with picker.opened(tab):
        pass


def test_import_of_a_file(tab, folder):
    settings.write_config("old = 1\n")
    picker.choose(tab, folder / "config.toml")
    settings.wait_for_message(tab, settings.IMPORTED)
    assert CONFIG.read_bytes() == CONTENT.encode()
    assert stat.S_IMODE(CONFIG.stat().st_mode) == 0o600
    assert chosen(tab) == ["Selected: config.toml"]
    # The fields are not read again until the tab is entered again.
    assert settings.field(tab, settings.KEY) == ""
    assert settings.field(tab, settings.SERVER) == settings.DEFAULT_URL
    settings.enter(tab)
    assert settings.field(tab, settings.KEY) == "●" * len("from-file")
    assert settings.field(tab, settings.SERVER) == "https://file.example"
    assert not chosen(tab)


def test_both_rows_are_green_and_in_order(tab, folder):
    picker.choose(tab, folder / "config.toml")
    settings.wait_for_message(tab, settings.IMPORTED)
    settings.bring_into_view(tab, "text", settings.IMPORTED)
    hands.park()
    tree, picture = tab.tree.read(), Picture()
    first = tree.find("text", "Selected: config.toml").box
    second = tree.find("text", settings.IMPORTED).box
    button = tree.find(*BROWSE).box
    assert button.bottom < first.y and first.bottom < second.y
    assert first.x == second.x
    assert picture.ink(first, colours.GREEN, colours.SUCCESS_TINT) > 0.65
    assert picture.pixel(second.right - 2, second.y - 6) == colours.SUCCESS_TINT


def failing(tmp_path, name):
    path = tmp_path / f"{name}.toml"
    if name == "binary":
        path.write_bytes(b"[agent]\n\xff\xfe")
    else:
        path.write_text("[AGENT]\n[ agent ]\n")
    return path


@pytest.mark.parametrize("name", ["section", "binary"])
def test_refused_file_leaves_the_old_configuration(tab, tmp_path, name):
    settings.write_config("[agent]\nold = 1\n")
    path = failing(tmp_path, name)
    picker.choose(tab, path)
    text = until(lambda: settings.message(tab), "a message")
    assert text == settings.NO_SECTION if name == "section" else text.startswith("❌ Error: ")
    assert CONFIG.read_text() == "[agent]\nold = 1\n"
    assert chosen(tab) == [f"Selected: {path.name}"]


def test_failed_import_then_save(tab, tmp_path):
    picker.choose(tab, failing(tmp_path, "section"))
    settings.wait_for_message(tab, settings.NO_SECTION)
    assert not CONFIG.exists()
    settings.bring_into_view(tab, "text", settings.NO_SECTION)
    hands.park()
    row = tab.tree.find("text", settings.NO_SECTION).box
    assert Picture().pixel(row.right - 2, row.y - 6) == colours.ERROR_TINT
    settings.fill(tab, settings.KEY, "k")
    settings.press(tab, settings.SAVE)
    settings.wait_for_message(tab, settings.SAVED)
    settings.bring_into_view(tab, "text", settings.SAVED)
    hands.park()
    row = tab.tree.find("text", settings.SAVED).box
    assert Picture().pixel(row.right - 2, row.y - 6) == colours.SUCCESS_TINT


def test_name_is_shown_as_it_is(tab, tmp_path):
    path = tmp_path / "<b>a & b<b>.toml"
    path.write_text("[agent]\n")
    picker.choose(tab, path)
    settings.wait_for_message(tab, settings.IMPORTED)
    assert chosen(tab) == [f"Selected: {path.name}"]


def test_window_polls_while_the_dialog_is_open(tab, backend):
    with picker.opened(tab):
        backend.wait_for_poll()
