# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A panel so large that strokes are several pixels wide and show their full colour."""

from .screen import Picture
from .waiting import until
from .window import Box

SCALE = 3
SCREEN = (3100, 3500)
SIZE = (1000, 1150)


def drawn(box):
    """The box in screen pixels: assistive technology gets unscaled numbers."""
    return Box(*(SCALE * length for length in box))


def picture():
    return Picture()


def resize(window, width, height):
    """Takes unscaled numbers, and moves the window to the top left corner."""
    window.move(0, 0)
    window.resize(width * SCALE, height * SCALE)
    wanted = Box(0, 0, width * SCALE, height * SCALE)
    until(lambda: window.box == wanted, f"a large window of {width} by {height}")
