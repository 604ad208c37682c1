# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A backend that accepts requests and does not answer them."""

import threading

import pytest

from harness import bodies, hands
from harness.backend import Backend, pollers
from harness.exchange import answer
from harness.waiting import until


class Held:
    """Answers the nth status request with threat count 100 + n, when its gate is set."""

    def __init__(self):
        self.gates = []

    def __call__(self, request):
        self.gates.append(threading.Event())
        count = len(self.gates)
        return answer(bodies.status(threat_count=100 + count), gate=self.gates[-1])


@pytest.fixture(scope="module")
def held():
    return Held()


@pytest.fixture(scope="module")
def backend(held):
    backend = Backend(status=held).start()
    yield backend
    backend.stop()


def test_polls_pile_up(panel, backend):
    until(lambda: len(backend.seen()) == 3, "three polls")
    requests = backend.seen()
    # No poll got beyond its first request, and none waits for an earlier one.
    assert [r.endpoint for r in requests] == ["status"] * 3
    assert [r.overlapping for r in requests] == [0, 1, 2]
    assert len({r.connection for r in requests}) == 3
    assert pollers([r.time for r in requests]) == 1


def test_window_still_works(panel, backend):
    assert panel.tree.find("text", "OFFLINE")
    hands.click(panel.tree.find("tab", "Alerts").box)
    panel.selected("Alerts")
    assert panel.tree.find("text", "No threats detected")
    hands.click(panel.tree.find("tab", "Dashboard").box)
    panel.selected("Dashboard")
    assert not any(r.answered for r in backend.seen())


def test_poll_finishing_last_wins(panel, backend, held):
    held.gates[1].set()
    panel.tree.wait_for("text", "102")
    held.gates[0].set()
    panel.tree.wait_for("text", "101")
    assert not panel.tree.find("text", "102")
    held.gates[2].set()
    panel.tree.wait_for("text", "103")
    # The panel is now quit with later polls still unanswered.
    until(lambda: len(held.gates) >= 4, "a poll that stays unanswered")
