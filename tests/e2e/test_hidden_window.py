# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A window that was hidden polls no more often than before when it is shown again."""

import pytest

from harness.backend import pollers
from harness.waiting import until
from harness.window import tool

pytestmark = pytest.mark.usefixtures("token")

CYCLES = 3
POLLS = 3


def minimise(panel):
    window = panel.window
    window.minimise()
    window.restore()


def leave_its_desktop(panel):
    window = panel.window
    tool("xdotool", "set_desktop", "1")
    until(lambda: not window.mapped(), "another desktop")
    tool("xdotool", "set_desktop", "0")
    until(lambda: window.mapped(), "its desktop")


@pytest.fixture
def starts(backend):
    """The start times of the polls since the test began."""
    before = len(backend.seen("status"))
    return lambda: [request.time for request in backend.seen("status")[before:]]


def assert_one_poller(starts):
    already = len(starts())
    until(lambda: len(starts()) >= already + POLLS, f"{POLLS} polls")
    assert pollers(starts()) == 1


@pytest.mark.parametrize("hide", [minimise, leave_its_desktop])
def test_polls_as_before(launch, starts, hide):
    panel = launch()
    assert_one_poller(starts)
    for _ in range(CYCLES):
        hide(panel)
    assert_one_poller(starts)


def test_brought_back_by_another_launch(launch, starts):
    panel = launch()
    for _ in range(CYCLES):
        panel.window.minimise()
        panel.launch_again()
    assert_one_poller(starts)
