# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Windows opened again and again, and panels started side by side."""

import contextlib
import socket
import tempfile

import pytest

from harness.backend import PORT
from harness.panel import quit_by_command, spawn
from harness.processes import held
from harness.tour import tour
from harness.waiting import never, until
from harness.window import visible
from patience import PATIENCE

pytestmark = pytest.mark.usefixtures("token")

WINDOWS = 20
# Enough that a silent agent would soon take every descriptor.
MANY_WINDOWS = 50
DESCRIPTORS = 512


def reopen(panel):
    panel.close()
    panel.launch_again()


def test_twenty_windows_one_after_another(launch, backend):
    panel = launch()
    # A new window polls immediately; after that poll all its connections are closed.
    reopen(panel)
    backend.wait_for_poll()
    before = held(panel.pid)
    for _ in range(WINDOWS):
        reopen(panel)
    assert len(panel.windows()) == 1
    # No more are open than during one of their polls.
    until(lambda: all(now <= was for now, was in zip(held(panel.pid), before)),
          f"no more than {before} open", step=0.01)
    panel.tree.wait_for("text", "OK")
    # Each window's timer continues.
    seen = len(backend.seen("status"))
    never(panel.ended, "the panel ended", seconds=5)
    assert len(backend.seen("status")) - seen >= WINDOWS


def test_fifty_windows_and_a_silent_agent_leave_descriptors(launch_alone, backend, clean_home):
    panel = launch_alone("/usr/bin/prlimit", f"--nofile={DESCRIPTORS}")
    for _ in range(MANY_WINDOWS):
        reopen(panel)
    backend.stop()
    # The system accepts for it; nobody reads.
    with socket.create_server(("127.0.0.1", PORT), backlog=4096):
        until(lambda: held(panel.pid)[0] > DESCRIPTORS - 32, "requests to take descriptors")
        panel.resize(1100, 800)
        tour(panel)
    backend.start()
    panel.tree.wait_for("text", "OK")


def test_two_launched_at_once(display, backend):
    with contextlib.ExitStack() as stack:
        both = [spawn(stack.enter_context(tempfile.TemporaryFile())) for _ in range(2)]
        until(lambda: [p for p in both if p.poll() is not None], "one to end")
        (other,) = [p for p in both if p.poll() is not None]
        (first,) = [p for p in both if p.poll() is None]
        assert other.returncode == 0
        until(lambda: visible(first.pid), "the window")
        never(lambda: len(visible(first.pid)) != 1, "another window", seconds=2)
        assert quit_by_command().returncode == 0
        assert first.wait(timeout=PATIENCE) == 0
