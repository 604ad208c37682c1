# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Waiting for a condition instead of for a time."""

import time

from patience import PATIENCE


SELDOM = 0.5  # the longest interval between two checks, in seconds


def until(condition, what, step=0.03):
    """Returns the condition's first true value."""
    end = time.monotonic() + PATIENCE
    while not (value := condition()):
        if time.monotonic() > end:
            raise AssertionError(f"waited {PATIENCE} s in vain for {what}")
        # Check less and less often, because checks slow the program down.
        time.sleep(step)
        step = max(step, min(1.5 * step, SELDOM))
    return value


def never(condition, what, seconds):
    """Checks for that long, and once at the end, that something does not happen."""
    end = time.monotonic() + seconds
    while (left := end - time.monotonic()) > 0:
        assert not condition(), what
        time.sleep(min(left, 0.3))
    assert not condition(), what
