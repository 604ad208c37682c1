# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The Network tab."""

import pytest

from harness import bodies, colours, hands
from harness.lists import listed, names
from harness.screen import Picture
from harness.waiting import until
from harness.window import Box

pytestmark = pytest.mark.usefixtures("token")

LIST = "Network connections"

CONNECTIONS = [
    bodies.connection("7823"),
    bodies.connection("7823"),
    bodies.connection("7823", risk_level="high", pid="4321", protocol="sctp"),
    bodies.connection("53", local_address="fe80::1%lo", state="LISTEN"),
    bodies.connection("00022 ", remote_address="", remote_port="", state=""),
    bodies.connection("1", local_address="zz"),
    bodies.connection("0", local_address="aa"),
]


@pytest.fixture
def shown(launch):
    panel = launch({"network": bodies.network(*CONNECTIONS)})
    panel.show("Network")
    panel.tree.wait_for("list", LIST)
    hands.park()
    return panel


def lines(row):
    return [text.name for text in sorted(row.every("text"), key=lambda t: t.box.y)]


def test_rows(shown):
    tree = shown.tree.read()
    first = "127.0.0.1:7823, → 10.0.0.5:443, ESTABLISHED"
    found = names(shown, LIST)
    assert found[:4] == [first] * 3 + ["fe80::1%lo:53, → 10.0.0.5:443, LISTEN"]
    assert found[5:] == ["zz:1, → 10.0.0.5:443, ESTABLISHED", "aa:0, → 10.0.0.5:443, ESTABLISHED"]
    assert {"127.0.0.1:00022 ", "→ :"} <= set(tree.texts())
    assert not any(word in tree.dump() for word in ("sctp", "4321", "high"))

    # Positions and colours of the parts of a row.
    view, rows = listed(shown, LIST)
    picture = Picture()
    local, remote, state = (
        rows[0].find("text", n) for n in ("127.0.0.1:7823", "→ 10.0.0.5:443", "ESTABLISHED")
    )
    assert local.box.x == remote.box.x and local.box.bottom <= remote.box.y
    assert view.box.right - state.box.right <= 24
    assert abs(state.box.centre[1] - rows[0].box.centre[1]) <= 2
    assert picture.ink(local.box, colours.BLACK) > 0.65
    assert picture.ink(remote.box, colours.GRAY) > 0.65
    assert picture.ink(state.box, colours.BLUE) > 0.65

    # Risk makes no difference to the look.
    width = state.box.right - local.box.x
    drawn = [list(picture.pixels(Box(local.box.x, row.box.y, width, row.box.height)))
             for row in rows[:3]]
    assert drawn[0] == drawn[1] == drawn[2]


def test_no_connections(launch):
    panel = launch({"network": bodies.network()})
    panel.show("Network")
    hands.park()
    text = panel.tree.wait_for("text", "No network connections detected").box
    tree = panel.tree.read()
    assert not tree.every("list")
    window, bar = tree.every("window")[0].box, tree.every("tab list")[0].box
    panel_area = Box(window.x + 2, bar.bottom + 4, window.width - 4, window.bottom - bar.bottom - 6)
    assert abs(text.centre[0] - panel_area.centre[0]) <= 2
    picture = Picture()
    assert picture.ink(text, colours.GRAY, colours.TINT) > 0.65
    icon = Box(text.centre[0] - 30, text.y - 20 - 50, 60, 64)
    assert picture.ink(icon, colours.GRAY, colours.TINT) > 0.65
    # Icon and text together are in the middle; everything else is tinted.
    assert abs((text.bottom + text.y - 60) // 2 - panel_area.centre[1]) <= 8
    for corner in ((panel_area.x, panel_area.y), (panel_area.right - 60, panel_area.bottom - 30)):
        assert picture.colours(Box(*corner, 50, 20)) == {colours.TINT}


def test_empty_state_replaces_the_list(shown, backend):
    backend.reply(network=bodies.network())
    shown.tree.wait_for("text", "No network connections detected")
    until(lambda: not shown.tree.find("list", LIST), "the list to disappear")
