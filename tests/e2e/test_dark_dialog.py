# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The file dialog is readable on desktops that set dark colours."""

import pytest

from harness import desktops, hands, large, picker
from harness.contrast import inked

SCREEN = large.SCREEN
SHOWN = {"more", "config.toml", "Filter", "Import", "Cancel", picker.TITLE}

pytestmark = pytest.mark.usefixtures("fresh_home")


# One of each kind, without GTK: that has its own dialog, in its own colours.
@pytest.mark.parametrize("name", ["kde", "qt6ct", "material", "controls-file"])
def test_every_text(launch_large, tmp_path, name):
    (tmp_path / "more").mkdir()
    (tmp_path / "config.toml").write_text("")
    panel = launch_large("env", f"--chdir={tmp_path}", **desktops.DARK[name]())
    panel.expected_output = desktops.EXPECTED_OUTPUT
    panel.show("Settings")
    with picker.opened(panel):
        hands.park()
        picture = large.picture()
        ratios = {item.name: inked(picture.pixels(large.drawn(item.box)))
                  for item in picker.shown(panel).walk()
                  if item.name in SHOWN and item.role in ("text", "button")}
        # With Qt 6.8 the dialog is a window of its own; the desktop draws its title.
        framed = {picker.TITLE} if panel.tree.find("window", picker.TITLE) else set()
    assert set(ratios) == SHOWN - framed
    # Nothing is chosen yet, so Import is disabled, and has less contrast on purpose.
    least = {"Import": 3.0}
    assert {name: ratio for name, ratio in ratios.items() if ratio < least.get(name, 4.5)} == {}
