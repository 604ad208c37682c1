# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The process is stopped, or the clock is set back or ahead; polls keep their interval."""

import os
import signal
import subprocess
import time
from pathlib import Path

import pytest

from harness.backend import pollers
from harness.clock import Clock
from harness.waiting import never, until

pytestmark = pytest.mark.usefixtures("token")


def starts(backend, since):
    return [r.time for r in backend.seen("status") if r.time > since]


def keeps_polling(backend, count=3):
    """Waits for that many polls from now on, which must have their usual interval."""
    since = time.monotonic()
    until(lambda: len(starts(backend, since)) >= count, f"{count} more polls")
    assert pollers(starts(backend, since)[:count]) == 1


def test_stopped_for_twenty_seconds(launch, backend):
    panel = launch()
    backend.wait_for_poll()
    os.kill(panel.pid, signal.SIGSTOP)
    stopped = time.monotonic()
    never(lambda: starts(backend, stopped + 1), "a stopped panel polled", seconds=20)
    os.kill(panel.pid, signal.SIGCONT)
    since = time.monotonic()
    until(lambda: len(starts(backend, since)) >= 3, "polling to continue")
    # Missed polls are not repeated: only the poll that was due, and the next.
    assert len([t for t in starts(backend, since) if t < since + 4]) <= 2
    keeps_polling(backend)


@pytest.fixture
def clock(tmp_path):
    return Clock(tmp_path)


@pytest.mark.parametrize("offset, year", [("-1d", 0), ("+10y", 10)])
def test_clock_set(launch, backend, clock, offset, year):
    panel = launch(**clock.environment)
    backend.wait_for_poll()
    clock.set(offset)
    # The library does change the time that a process gets.
    date = subprocess.run(["date", "+%s"], env=os.environ | clock.environment,
                          capture_output=True, text=True, check=True)
    assert abs(float(date.stdout) - time.time()) > 80_000 * (365 * year or 1)
    assert "libfaketime" in Path(f"/proc/{panel.pid}/maps").read_text()
    keeps_polling(backend)
    panel.tree.wait_for("text", "OK")
