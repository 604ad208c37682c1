# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Where the token comes from and how it is sent."""

import pytest

from harness import tokens
from harness.waiting import never, until

EXAMPLES = {
    "system-wide first": ("system", "home", "system"),
    "all white space trimmed": (" \t\u2003abc 123\u00a0\r\n\n", None, "abc 123"),
    "blank file is a token": ("\n", "home", ""),
    "not UTF-8": (b"abc\xff\xfe", "home", "home"),
    "system-wide missing": (None, " home\n", "home"),
}


@pytest.fixture(autouse=True)
def no_tokens():
    tokens.remove(tokens.SYSTEM)
    tokens.remove(tokens.HOME)


def sent(launch, backend):
    """The token field of a new panel's first request."""
    before = len(backend.seen())
    launch()
    until(lambda: len(backend.seen()) > before, "a request")
    return backend.seen()[before].header("X-Agent-Token")


@pytest.mark.parametrize("example", EXAMPLES)
def test_token(launch, backend, example):
    system, home, expected = EXAMPLES[example]
    tokens.write(tokens.SYSTEM, system)
    tokens.write(tokens.HOME, home)
    assert sent(launch, backend) == [expected]


@pytest.mark.parametrize("content", [None, "abc\r\nX-Other: 1", "a\x01b"])
def test_nothing_is_ever_sent(launch, backend, content):
    tokens.write(tokens.SYSTEM, content)
    before = backend.connections
    panel = launch()
    panel.tree.wait_for("text", "OFFLINE")
    # A token that is written later is not read.
    tokens.write(tokens.SYSTEM, "late")
    never(lambda: backend.connections > before, "the panel connected", seconds=6)
