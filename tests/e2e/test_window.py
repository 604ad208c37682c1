# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The window: its size limits, its background, and its controls instead of a title bar."""

import pytest

from harness import colours, hands
from harness.screen import Picture
from harness.waiting import never, until
from harness.window import Box


@pytest.fixture(autouse=True)
def usual_size(panel):
    window = panel.window
    window.move(200, 150)
    window.resize(1000, 700)
    until(lambda: window.box == Box(200, 150, 1000, 700), "the usual place and size")
    return window


def button(panel, name):
    return panel.tree.wait_for("button", name).box


def header(panel):
    """An empty place in the header."""
    window = panel.window.box
    return window.x + window.width // 2, window.y + 60


def test_no_title_bar(panel, usual_size):
    assert usual_size.property("_NET_FRAME_EXTENTS") == "0, 0, 0, 0"
    # The header band begins at the top edge, but for a border of 1.
    window = usual_size.box
    strip = Box(window.x + 100, window.y + 1, 400, 18)
    until(lambda: Picture().colours(strip) == {colours.WHITE}, "the header band at the top")
    assert panel.tree.find("text", "Quillmark Agent").box.y - window.y in (20, 21)


def test_identifier_is_the_role(usual_size):
    assert usual_size.property("WM_WINDOW_ROLE") == '"main"'


def test_background_at_launch(panel, usual_size):
    panel.show("Dashboard")
    usual_size.resize(1000, 1000)
    until(lambda: usual_size.box.height == 1000, "a taller window")
    hands.park()
    window = usual_size.box
    below_the_cards = Box(window.x + 4, window.bottom - 40, window.width - 8, 30)
    until(lambda: Picture().colours(below_the_cards) == {colours.LAUNCH_GROUND},
          "the light blue-grey background")


@pytest.mark.parametrize("width, height", [(600, 700), (1000, 400), (10, 10)])
def test_cannot_be_made_smaller(usual_size, width, height):
    usual_size.resize(width, height)
    never(lambda: usual_size.box[2:] != (1000, 700), "it shrank", seconds=0.3)


def test_can_grow(usual_size):
    usual_size.resize(1390, 1040)
    until(lambda: usual_size.box[2:] == (1390, 1040), "a bigger window")


@pytest.mark.parametrize("outward", [1, -1])
def test_edges_resize_within_bounds(usual_size, outward):
    box = usual_size.box
    hands.drag((box.right - 2, box.bottom - 2), (outward * 150, outward * 100))
    if outward > 0:
        until(lambda: usual_size.box.width > 1100 and usual_size.box.height > 760, "growth")
    else:
        never(lambda: usual_size.box[2:] != (1000, 700), "it shrank", seconds=0.3)
    assert usual_size.box[:2] == box[:2]


def test_left_and_top_edges_resize_too(usual_size):
    box = usual_size.box
    hands.drag((box.x + 1, box.y + 400), (-120, 0))
    until(lambda: usual_size.box.width > 1080, "growth to the left")
    grown = usual_size.settled()
    hands.drag((grown.x + 300, grown.y + 1), (0, -90))
    until(lambda: usual_size.box.height > 760, "growth to the top")
    grown = usual_size.settled()
    assert (grown.right, grown.bottom) == (box.right, box.bottom)


def test_header_drags_the_window(panel, usual_size):
    hands.drag(header(panel), (100, 60))
    until(lambda: abs(usual_size.box.x - 300) < 30 and abs(usual_size.box.y - 210) < 30,
          "the window to follow the pointer")
    moved = usual_size.settled()
    assert moved[2:] == (1000, 700)
    # The drag is over with its release: a click elsewhere moves nothing.
    hands.click(Box(moved.x + 400, moved.y + 30, 1, 1))
    assert usual_size.settled() == moved


def test_double_click_on_the_header_maximises_and_restores(panel, usual_size):
    for expected in (True, False):
        hands.click(Box(*header(panel), 1, 1), times=2)
        until(lambda: ("MAXIMIZED" in usual_size.states()) == expected, "the double click")
        # The header's place changes after the state.
        usual_size.settled()


def test_maximise_and_restore_buttons(panel, usual_size):
    hands.click(button(panel, "Maximize"))
    until(lambda: "MAXIMIZED_VERT" in usual_size.states(), "the window to be maximised")
    hands.click(button(panel, "Restore"))
    until(lambda: usual_size.box[2:] == (1000, 700), "the former size")
    button(panel, "Maximize")


def test_minimise_button(panel, usual_size):
    hands.click(button(panel, "Minimize"))
    until(lambda: "HIDDEN" in usual_size.states(), "the window to be minimised")
    usual_size.restore()


def test_window_buttons_are_in_the_top_padding_at_the_right(panel, usual_size):
    window = usual_size.box
    boxes = [button(panel, name) for name in ("Minimize", "Maximize", "Close")]
    assert [b.x for b in boxes] == sorted(b.x for b in boxes)
    for box in boxes:
        assert window.holds(box)
        assert box.y - window.y < 20 and window.right - box.right < 120


def test_window_buttons_by_keyboard(panel, usual_size):
    panel.press_until_focused("button", "Maximize")
    hands.key("space")
    until(lambda: "MAXIMIZED_VERT" in usual_size.states(), "the window to be maximised")
    panel.press_until_focused("button", "Restore")
    hands.key("space")
    until(lambda: usual_size.box[2:] == (1000, 700), "the former size")
