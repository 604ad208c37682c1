# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Waiting for a condition instead of for a time."""

import time

from patience import PATIENCE


SELDOM = 0.5  # seconds between two looks at what takes long


def until(condition, what, step=0.03):
    """Returns the condition's first true value."""
    end = time.monotonic() + PATIENCE
    while not (value := condition()):
        if time.monotonic() > end:
            raise AssertionError(f"waited {PATIENCE} s in vain for {what}")
        # Ever less often: looking costs what is awaited, too.
        time.sleep(step)
        step = max(step, min(1.5 * step, SELDOM))
    return value


def never(condition, what, seconds):
    """Holds for things that must not happen; only a lapse of time can show it."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        assert not condition(), what
        time.sleep(SELDOM)
