# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A panel so large that strokes are as wide as several pixels, and show their colour."""

from .screen import Picture
from .waiting import until
from .window import Box

SCALE = 3
SCREEN = (3100, 3500)
SIZE = (1000, 1150)


def drawn(box):
    """Where it is on the screen; assistive technology is told unscaled numbers."""
    return Box(*(SCALE * length for length in box))


def picture():
    return Picture()


def resize(window, width, height):
    """To the top left corner, in unscaled numbers."""
    window.move(0, 0)
    window.resize(width * SCALE, height * SCALE)
    wanted = Box(0, 0, width * SCALE, height * SCALE)
    until(lambda: window.box == wanted, f"a large window of {width} by {height}")
