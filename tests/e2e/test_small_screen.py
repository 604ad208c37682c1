# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A screen smaller than the window."""

import pytest

from harness import hands
from harness.display import Display
from harness.waiting import until
from harness.window import Box

SCREEN = Box(0, 0, 800, 600)


@pytest.fixture(scope="module")
def display():
    display = Display(SCREEN.width, SCREEN.height)
    yield display
    display.stop()


def test_starts_on_the_screen_at_its_minimum_size(panel):
    box = panel.window.settled()
    assert box[2:] == (1000, 700)
    # What a user reads first is on the screen.
    assert SCREEN.holds(panel.tree.find("text", "Quillmark Agent").box)
    assert SCREEN.holds(panel.tree.find("tab", "Settings").box)


def test_the_rest_can_be_dragged_into_view(panel):
    box = panel.window.settled()
    hands.drag((box.x + 400, box.y + 60), (-300, 0))
    until(lambda: panel.window.box.x < box.x - 150, "the window to follow")
    assert SCREEN.holds(panel.tree.find("button", "Close").box)


def test_works_without_what_is_off_the_screen(panel):
    panel.show("Alerts")
    panel.tree.wait_for("list", "Security alerts")
    panel.close()
