# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Token files that may not be read. Only an ordinary user can be refused."""

import os

import pytest

from harness import tokens
from harness.waiting import until


@pytest.fixture(autouse=True)
def ordinary_user():
    assert os.geteuid() != 0, "run this file with the sandbox's --as-user"


@pytest.mark.parametrize("closed", [tokens.SYSTEM, tokens.SYSTEM.parent])
def test_home_token_in_place_of_an_unreadable_one(launch, backend, closed):
    tokens.write(tokens.SYSTEM, "system")
    tokens.write(tokens.HOME, "home")
    closed.chmod(0)
    try:
        before = len(backend.seen())
        launch()
        until(lambda: len(backend.seen()) > before, "a request")
        assert backend.seen()[before].header("X-Agent-Token") == ["home"]
    finally:
        closed.chmod(0o700)
