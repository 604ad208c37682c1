# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the display shows, as it keeps it: no program is started, and nothing is
converted, for tests look many times."""

import ctypes


class _Image(ctypes.Structure):
    """The beginning of Xlib's own."""
    _fields_ = [
        *((name, ctypes.c_int) for name in ("width", "height", "xoffset", "format")),
        ("data", ctypes.c_void_p),
        *((name, ctypes.c_int) for name in (
            "byte_order", "bitmap_unit", "bitmap_bit_order", "bitmap_pad", "depth",
            "bytes_per_line")),
    ]


_x = ctypes.CDLL("libX11.so.6")
_x.XOpenDisplay.restype = ctypes.c_void_p
_x.XDefaultRootWindow.restype = ctypes.c_ulong
_x.XGetImage.restype = ctypes.POINTER(_Image)
_ALL_PLANES = ctypes.c_ulong(-1)
_Z_PIXMAP = 2
BYTES = 4  # blue, green, red, and one that means nothing


def grab():
    """The whole screen: its width, and the bytes of its pixels row by row."""
    display = ctypes.c_void_p(_x.XOpenDisplay(None))
    assert display, "no display"
    try:
        width, height = _x.XDisplayWidth(display, 0), _x.XDisplayHeight(display, 0)
        root = ctypes.c_ulong(_x.XDefaultRootWindow(display))
        image = _x.XGetImage(display, root, 0, 0, width, height, _ALL_PLANES, _Z_PIXMAP)
        assert image.contents.bytes_per_line == BYTES * width
        data = ctypes.string_at(image.contents.data, BYTES * width * height)
        _x.XDestroyImage(image)
    finally:
        _x.XCloseDisplay(display)
    return width, data
