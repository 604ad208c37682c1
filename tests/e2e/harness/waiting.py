# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Waiting for a condition instead of for a time."""

import time

# Generous: a loaded machine must not decide a result.
PATIENCE = 15.0


def until(condition, what, timeout=PATIENCE, step=0.03):
    """Returns the condition's first true value."""
    end = time.monotonic() + timeout
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"waited {timeout} s in vain for {what}")
        time.sleep(step)


def never(condition, what, seconds):
    """Holds for things that must not happen; only a lapse of time can show it."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        assert not condition(), what
        time.sleep(0.05)
