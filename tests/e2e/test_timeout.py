# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A request gives up on a silent backend after a minute."""

import pytest

from harness.backend import Backend
from harness.exchange import silence
from harness.waiting import until


@pytest.fixture(scope="module")
def backend():
    backend = Backend(status=silence()).start()
    yield backend
    backend.stop()


def test_gives_up_after_sixty_seconds_and_continues(panel, backend):
    until(lambda: backend.seen("inventory"), "the rest of the first poll")
    first = backend.seen("status")[0]
    # Less than 60, because the backend may have received the first request late.
    assert backend.seen("alerts")[0].time - first.time > 50
    # There was no answer, so there is no status; the rest of the poll counts.
    panel.tree.wait_for("text", "Installed Applications")
    assert panel.tree.find("text", "OFFLINE")
