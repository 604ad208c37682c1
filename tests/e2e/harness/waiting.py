# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Waiting for a condition instead of for a time."""

import time

from patience import PATIENCE


def until(condition, what, step=0.03):
    """Returns the condition's first true value."""
    end = time.monotonic() + PATIENCE
    while True:
        asked = time.monotonic()
        value = condition()
        if value:
            return value
        now = time.monotonic()
        if now > end:
            raise AssertionError(f"waited {PATIENCE} s in vain for {what}")
        # At least as long as the look took, to leave the core to what is awaited.
        time.sleep(max(step, now - asked))


def never(condition, what, seconds):
    """Holds for things that must not happen; only a lapse of time can show it."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        assert not condition(), what
        time.sleep(0.05)
