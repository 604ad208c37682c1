# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A list of 200,000 connections does not stop the window."""

import pytest

from harness import bodies, hands
from harness.backend import Backend
from harness.exchange import answer
from harness.lists import listed, names, scroll
from harness.waiting import until

LIST = "Network connections"
COUNT = 200_000


def connections(state, count=COUNT):
    return answer(bodies.network(
        *[bodies.connection(str(i), state=state) for i in range(count)]
    ))


@pytest.fixture(scope="module")
def backend():
    backend = Backend(network=connections("FIRST")).start()
    yield backend
    backend.stop()


def test_shown_scrolled_and_replaced(panel, backend):
    panel.tree.wait_for("text", str(COUNT))
    panel.show("Network")
    panel.tree.wait_for("list", LIST)
    assert names(panel, LIST)[0] == "127.0.0.1:0, → 10.0.0.5:443, FIRST"
    last = f"127.0.0.1:{COUNT - 1}, → 10.0.0.5:443, "
    assert scroll(panel, LIST, "End")[-1].name == last + "FIRST"

    backend.reply(network=connections("SECOND"))
    until(lambda: names(panel, LIST)[-1] == last + "SECOND", "the new list")
    hands.click(panel.tree.find("tab", "Alerts").box)
    panel.selected("Alerts")
    hands.click(panel.tree.find("tab", "Network").box)
    panel.selected("Network")


def test_shrunk_while_scrolled_to_its_end(panel, backend):
    panel.show("Network")
    panel.tree.wait_for("list", LIST)
    panel.focus_on("list", LIST)
    hands.key("End")
    until(lambda: names(panel, LIST)[-1].startswith(f"127.0.0.1:{COUNT - 1},"), "the end")
    backend.reply(network=connections("THIRD", count=100))

    def at_the_new_end():
        view, rows = listed(panel, LIST)
        return rows and rows[-1].name == "127.0.0.1:99, → 10.0.0.5:443, THIRD" and (
            rows[-1].box.bottom <= view.box.bottom + 1 and rows[0].box.y <= view.box.y
        )

    until(at_the_new_end, "the shorter list's end in view")
