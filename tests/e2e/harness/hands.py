# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Key presses and pointer actions, through the X server's test extension."""

import time

from . import xdotool
from .window import tool

# Seconds. A check without this pause would mostly be too early.
REACTION = 0.02


def key(*names, times=1):
    """Repeats with pauses, as a key that is held down."""
    repeat = ["--repeat", str(times), "--repeat-delay", "4"] if times > 1 else []
    # To the window with the focus, not to the one that xdotool was last asked about.
    xdotool.do("key", "--window", "0", *repeat, *names)
    time.sleep(REACTION)


def write(text):
    """Types slowly enough for the window to handle every key."""
    tool("xdotool", "type", "--delay", "8", text)


def click(box, times=1, button=1):
    x, y = box.centre
    repeat = ["--repeat", str(times), "--delay", "60"] if times > 1 else []
    xdotool.do("mousemove", str(x), str(y), "click", *repeat, str(button))
    time.sleep(REACTION)


def click_in_turn(boxes, times):
    """Clicks each box in turn, `times` times, as fast as a user cannot."""
    for box in boxes * times:
        xdotool.do("mousemove", *map(str, box.centre), "click", "1", "sleep", "0.03")


def hold(box, seconds, by=(0, 0)):
    """Presses in the middle of the box, waits, moves by `by` and releases."""
    x, y = box.centre
    xdotool.do("mousemove", str(x), str(y), "mousedown", "1", "sleep", str(seconds),
               "mousemove", str(x + by[0]), str(y + by[1]), "mouseup", "1")


def drag(start, by, steps=8):
    """Moves in steps, because the movement distinguishes a drag from a click."""
    moves = []
    for step in range(1, steps + 1):
        x, y = (s + d * step // steps for s, d in zip(start, by))
        moves += ["mousemove", str(x), str(y), "sleep", "0.02"]
    xdotool.do("mousemove", *map(str, start), "mousedown", "1", *moves, "mouseup", "1")


def wheel_down(box, notches, button=5):
    x, y = box.centre
    xdotool.do("mousemove", str(x), str(y), "click", "--repeat", str(notches),
               "--delay", "10", str(button))
    time.sleep(REACTION)


def wheel_up(box, notches):
    wheel_down(box, notches, button=4)


def park():
    """Moves the pointer away from everything that it would highlight."""
    xdotool.do("mousemove", "0", "0")
