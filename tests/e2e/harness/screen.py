# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Pictures of the screen, and what can be measured in them."""

import os
import re
import struct
import zlib
from pathlib import Path

from . import pixels
from .waiting import until
from .window import Box

BUILD = Path(os.environ["QUILLMARK_BUILD_DIR"])


def save(path, box=None):
    Picture().save(path, box)


class Picture:
    def __init__(self):
        self._width, self._data = pixels.grab()

    @classmethod
    def settled(cls):
        """Taken when three in a row are equal: drawing has finished."""
        taken = []

        def still():
            taken.append(cls())
            return len(taken) > 2 and len({p.whole() for p in taken[-3:]}) == 1 and taken[-1]

        return until(still, "the screen to stop changing", step=0.15)

    def save(self, path, box=None):
        """As PNG: the whole screen, or the box."""
        box = box or Box(0, 0, self._width, len(self._data) // pixels.BYTES // self._width)
        lines = bytearray()
        for y in range(box.y, box.bottom):
            at = pixels.BYTES * (y * self._width + box.x)
            line = self._data[at:at + pixels.BYTES * box.width]
            colours = bytearray(3 * box.width)
            for channel in range(3):
                colours[channel::3] = line[2 - channel::pixels.BYTES]
            lines += b"\0" + colours

        def chunk(name, content):
            check = struct.pack(">I", zlib.crc32(name + content))
            return struct.pack(">I", len(content)) + name + content + check

        header = struct.pack(">IIBBBBB", box.width, box.height, 8, 2, 0, 0, 0)
        Path(path).write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header)
                               + chunk(b"IDAT", zlib.compress(lines, 1)) + chunk(b"IEND", b""))

    def whole(self):
        """The pixels in a form that can only be compared."""
        return self._data

    def pixel(self, x, y):
        at = pixels.BYTES * (y * self._width + x)
        return tuple(self._data[at:at + 3][::-1])

    def pixels(self, box):
        for y in range(box.y, box.bottom):
            row = pixels.BYTES * (y * self._width + box.x)
            line = self._data[row:row + pixels.BYTES * box.width]
            yield from zip(line[2::pixels.BYTES], line[1::pixels.BYTES], line[::pixels.BYTES])

    def find(self, colour, row, length):
        """The offset of the first `length` pixels of the colour side by side in the row, a
        box one pixel high; None if there are none."""
        start = pixels.BYTES * (row.y * self._width + row.x)
        line = self._data[start:start + pixels.BYTES * row.width]
        pixel = re.escape(bytes(reversed(colour))) + b"."
        found = re.search(b"(?:%s){%d}" % (pixel, length), line, re.DOTALL)
        return found and found.start() // pixels.BYTES

    def count(self, colour, box):
        return sum(pixel == colour for pixel in self.pixels(box))

    def colours(self, box):
        return set(self.pixels(box))

    def ink(self, box, colour, ground=None):
        """The largest share of the colour in a pixel of the box, 0 to 1.

        Antialiased edges mix it with the background. A pixel that is no mixture of
        these two has another colour and fails.
        """
        ground = ground or self.pixel(box.x, box.y)
        span = [c - g for c, g in zip(colour, ground)]
        length = sum(s * s for s in span)
        fullest = 0.0
        for pixel in self.colours(box):
            offset = [p - g for p, g in zip(pixel, ground)]
            share = sum(o * s for o, s in zip(offset, span)) / length
            stray = max(abs(o - share * s) for o, s in zip(offset, span))
            assert stray <= 10 and -0.06 <= share <= 1.06, (
                f"{pixel} is no mixture of {colour} and {ground} in {box}"
            )
            fullest = max(fullest, share)
        return fullest
