# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A list of 10,000 connections: scrolled by keyboard, and not moved by polls."""

import pytest

from harness import bodies, hands
from harness.backend import Backend
from harness.lists import listed, names, scroll, settled
from harness.waiting import until

LIST = "Network connections"
COUNT = 10_000


def row(index, state="ESTABLISHED"):
    return f"127.0.0.1:{index}, → 10.0.0.5:443, {state}"


def connections(state="ESTABLISHED"):
    return bodies.network(*[bodies.connection(str(i), state=state) for i in range(COUNT)])


@pytest.fixture(scope="module")
def backend():
    backend = Backend(network=connections()).start()
    yield backend
    backend.stop()


@pytest.fixture(autouse=True)
def list_shown(panel):
    panel.show("Network")
    panel.tree.wait_for("list", LIST)
    hands.park()


def test_end_and_home(panel):
    assert scroll(panel, LIST, "End")[-1].name == row(COUNT - 1)
    view, rows = listed(panel, LIST)
    assert rows[-1].box.bottom <= view.box.bottom + 1
    assert scroll(panel, LIST, "Home")[0].name == row(0)
    assert listed(panel, LIST)[1][0].box.y == view.box.y


def test_place_is_kept_over_ten_polls(panel, backend):
    scroll(panel, LIST, "Next", times=400)
    before = listed(panel, LIST)
    index = int(before[1][0].name.partition(",")[0].partition(":")[2])
    assert COUNT // 10 < index < COUNT * 9 // 10

    done = len(backend.seen("inventory"))
    until(lambda: len(backend.seen("inventory")) >= done + 9, "nine polls")
    assert listed(panel, LIST) == before

    # The tenth brings other values: they are shown, at the same place.
    backend.reply(network=connections("CLOSED"))
    until(lambda: names(panel, LIST)[0] == row(index, "CLOSED"), "the tenth poll")
    after = settled(panel, LIST)
    assert [r.box for r in after] == [r.box for r in before[1]]
    assert [r.name for r in after] == [row(index + i, "CLOSED") for i in range(len(after))]
