# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A backend that accepts requests and does not answer them."""

import pytest

from harness import hands
from harness.backend import Backend, pollers
from harness.exchange import silence
from harness.waiting import until


@pytest.fixture(scope="module")
def backend():
    backend = Backend(status=silence()).start()
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
