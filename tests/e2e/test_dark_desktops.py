# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The panel keeps its own colours on desktops that set dark ones."""

import pytest

from harness import desktops, hands
from harness.panel import TABS
from harness.screen import Picture
from harness.waiting import until
from harness.window import Box

PLACE = Box(200, 150, 1000, 700)

pytestmark = pytest.mark.usefixtures("token", "clean_home")


def opened(launch, environment):
    panel = launch(**environment)
    panel.expected_output = desktops.EXPECTED_OUTPUT
    panel.window.move(*PLACE[:2])
    until(lambda: panel.window.box == PLACE, "the usual place")
    panel.tree.wait_for("text", "OK")
    return panel


def pictures(launch, environment):
    panel = opened(launch, environment)
    found = {}
    for tab in TABS:
        panel.show(tab)
        hands.park()
        found[tab] = Picture.settled().whole()
    panel.finish()
    return found


@pytest.fixture(scope="module")
def album():
    return {}


@pytest.fixture
def usual(launch, album):
    if not album:
        album.update(pictures(launch, {}))
    return album


@pytest.mark.parametrize("name", desktops.DARK)
def test_every_tab_looks_as_usual(launch, usual, name):
    here = pictures(launch, desktops.DARK[name]())
    assert [tab for tab in TABS if here[tab] != usual[tab]] == []
