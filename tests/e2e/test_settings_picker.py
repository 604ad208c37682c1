# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The open dialog's list of files."""

import pytest

from harness import hands, picker, settings
from harness.contrast import contrast
from harness.screen import BUILD, Picture, save
from harness.settings import CONFIG
from harness.waiting import until

pytestmark = pytest.mark.usefixtures("fresh_home")

CONTENT = "[agent]\n"


@pytest.fixture
def panel(launch_alone, tmp_path):
    """The dialog opens in the folder in which the panel was started."""
    (tmp_path / "more").mkdir()
    for name in ("a.txt", "config.toml", "other.cfg"):
        (tmp_path / name).write_text(CONTENT)
    panel = launch_alone("env", f"--chdir={tmp_path}")
    panel.show("Settings")
    return panel


def test_lists_only_possible_configurations(panel):
    with picker.opened(panel) as dialog:
        assert [n for n in ("more", "a.txt", "config.toml", "other.cfg")
                if dialog.find("text", n)] == ["more", "a.txt", "config.toml"]
        hands.park()
        save(BUILD / "pictures" / "settings-dialog.png", panel.window.box)


def test_lists_all_files_with_the_other_filter(panel):
    with picker.opened(panel):
        panel.press_until_focused("combo box", "Configuration files (*.toml *.txt)")
        hands.key("Down")
        panel.tree.wait_for("combo box", "All files (*)")
        panel.tree.wait_for("text", "other.cfg")


def test_opens_again_as_it_was_left(panel):
    with picker.opened(panel):
        panel.press_until_focused("combo box", "Configuration files (*.toml *.txt)")
        hands.key("Down")
        panel.tree.wait_for("text", "other.cfg")
    with picker.opened(panel):
        panel.tree.wait_for("text", "other.cfg")


def test_the_chosen_row_can_be_read(panel):
    with picker.opened(panel):
        hands.park()
        row = picker.chosen_row(panel)
        ground = Picture().pixel(row.box.right - 4, row.box.y + 4)
        shades = Picture().colours(row.every("text")[0].box)
        assert max(contrast(shade, ground) for shade in shades) >= 4.5


def test_file_picked_by_arrow_keys(panel, tmp_path):
    picker.pick(panel, tmp_path / "config.toml")
    until(CONFIG.exists, "the imported file")
    assert CONFIG.read_text() == CONTENT
    settings.bring_into_view(panel, "text", settings.IMPORTED)
