# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A long press, or one during which the pointer moves, is a click like any other."""

import pytest

from harness import hands, settings
from harness.waiting import never, until

# Longer than what toolkits take for a long press, further than for a drag.
HELD = 1.2
DRIFT = (25, 5)


@pytest.mark.parametrize("tab", ["Alerts", "Dashboard"])
def test_tab(panel, tab):
    hands.hold(panel.tree.find("tab", tab).box, HELD, DRIFT)
    panel.selected(tab)


def test_button(tab):
    settings.fill(tab, settings.KEY, "k")
    hands.hold(tab.tree.find(*settings.SAVE).box, HELD, DRIFT)
    settings.wait_for_message(tab, settings.SAVED)


def test_button_that_the_pointer_leaves(tab):
    settings.fill(tab, settings.KEY, "k")
    save = tab.tree.find(*settings.SAVE).box
    hands.hold(save, 0.1, (0, save.height))
    never(lambda: settings.message(tab), "something was saved", seconds=0.5)
    assert not settings.CONFIG.exists()


def test_glyph(panel):
    window = panel.window
    hands.hold(panel.tree.wait_for("button", "Maximize").box, HELD, (5, 2))
    until(lambda: "MAXIMIZED_VERT" in window.states(), "the window to be maximised")
    hands.hold(panel.tree.wait_for("button", "Restore").box, HELD, (5, 2))
    until(lambda: "MAXIMIZED_VERT" not in window.states(), "the window to be restored")


def test_press_just_below_a_glyph(panel):
    """A finger is not as exact as the 20 pixels of a glyph."""
    box = panel.tree.wait_for("button", "Maximize").box
    hands.click(box._replace(y=box.bottom, height=8))
    until(lambda: "MAXIMIZED_VERT" in panel.window.states(), "the window to be maximised")
    hands.hold(panel.tree.wait_for("button", "Restore").box, 0.1, (5, 2))
    until(lambda: "MAXIMIZED_VERT" not in panel.window.states(), "the window to be restored")


def test_glyph_that_is_dragged_moves_no_window(panel):
    window = panel.window.settled()
    x, y = panel.tree.wait_for("button", "Minimize").box.centre
    hands.drag((x, y), (-100, 60))
    assert panel.window.settled() == window
    assert "HIDDEN" not in panel.window.states()
