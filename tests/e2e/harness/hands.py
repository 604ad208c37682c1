# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Keys and pointer, through the X server's own test extension."""

import time

from .window import tool

# Most looks that a test takes at once would be too early and have to be repeated.
REACTION = 0.02


def key(*names, times=1):
    """Waits between repeated keys, as held keys do."""
    repeat = ["--repeat", str(times), "--repeat-delay", "4"] if times > 1 else []
    tool("xdotool", "key", *repeat, *names)
    time.sleep(REACTION)


def write(text):
    """Slowly enough for a window that is asked about every key."""
    tool("xdotool", "type", "--delay", "8", text)


def click(box, times=1):
    x, y = box.centre
    repeat = ["--repeat", str(times), "--delay", "60"] if times > 1 else []
    tool("xdotool", "mousemove", str(x), str(y), "click", *repeat, "1")
    time.sleep(REACTION)


def hold(box, seconds, by=(0, 0)):
    """Presses in the middle, stays, moves by so much and lets go."""
    x, y = box.centre
    tool("xdotool", "mousemove", str(x), str(y), "mousedown", "1", "sleep", str(seconds),
         "mousemove", str(x + by[0]), str(y + by[1]), "mouseup", "1")


def drag(start, by, steps=8):
    """In steps: a drag is told from a click by its movement."""
    moves = []
    for step in range(1, steps + 1):
        x, y = (s + d * step // steps for s, d in zip(start, by))
        moves += ["mousemove", str(x), str(y), "sleep", "0.02"]
    tool("xdotool", "mousemove", *map(str, start), "mousedown", "1", *moves, "mouseup", "1")


def wheel_down(box, notches, button=5):
    x, y = box.centre
    tool("xdotool", "mousemove", str(x), str(y), "click", "--repeat", str(notches),
         "--delay", "10", str(button))
    time.sleep(REACTION)


def wheel_up(box, notches):
    wheel_down(box, notches, button=4)


def park():
    """Away from everything that lights up under the pointer."""
    tool("xdotool", "mousemove", "0", "0")
