# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The requests of polls, as the backend receives them."""

from itertools import pairwise

import pytest

from harness import bodies
from harness.backend import ENDPOINTS, Backend
from harness.exchange import answer
from harness.waiting import until

POLLS = 3


@pytest.fixture(scope="module")
def backend():
    # Slow enough to detect requests that overlap.
    slow = {k: answer(v, delay=0.2) for k, v in bodies.everyday().items()}
    backend = Backend(**slow).start()
    yield backend
    backend.stop()


@pytest.fixture(scope="module")
def requests(panel, backend):
    until(lambda: len(backend.seen("inventory")) >= POLLS, "three polls")
    return backend.seen()[: POLLS * len(ENDPOINTS)]


def test_four_requests_in_their_order(requests):
    assert [r.target for r in requests] == [f"/api/{e}" for e in ENDPOINTS] * POLLS


def test_one_after_another(requests):
    assert [r.overlapping for r in requests] == [0] * len(requests)
    for before, after in pairwise(requests):
        assert before.answered <= after.time


def test_each_on_a_separate_connection(requests, backend):
    assert len({r.connection for r in requests}) == len(requests)
    # No connection is opened that carries no request.
    until(lambda: backend.connections == len(backend.seen()), "all requests read")


def test_requests_contain_only_the_token(requests, token):
    for request in requests:
        assert (request.method, request.version) == ("GET", "HTTP/1.1")
        assert request.header("Host") == ["127.0.0.1:7823"]
        assert request.header("X-Agent-Token") == [token]
        names = sorted(name for name, _ in request.headers)
        assert names in (["Connection", "Host", "X-Agent-Token"], ["Host", "X-Agent-Token"])
