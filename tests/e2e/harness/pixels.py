# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The pixels of the screen, in the X server's own format. The server writes them
into shared memory, which takes a tenth of the time of its socket."""

import ctypes


class _Image(ctypes.Structure):
    """The first fields of Xlib's XImage."""
    _fields_ = [
        *((name, ctypes.c_int) for name in ("width", "height", "xoffset", "format")),
        ("data", ctypes.c_void_p),
        *((name, ctypes.c_int) for name in (
            "byte_order", "bitmap_unit", "bitmap_bit_order", "bitmap_pad", "depth",
            "bytes_per_line")),
    ]


class _Segment(ctypes.Structure):
    """XShmSegmentInfo."""
    _fields_ = [("segment", ctypes.c_ulong), ("identifier", ctypes.c_int),
                ("address", ctypes.c_void_p), ("read_only", ctypes.c_int)]


_c = ctypes.CDLL(None)
_c.shmat.restype = ctypes.c_void_p
_x = ctypes.CDLL("libX11.so.6")
_x.XOpenDisplay.restype = ctypes.c_void_p
_x.XDefaultRootWindow.restype = ctypes.c_ulong
_x.XDefaultVisual.restype = ctypes.c_void_p
_shared = ctypes.CDLL("libXext.so.6")
_shared.XShmCreateImage.restype = ctypes.POINTER(_Image)
_ALL_PLANES = ctypes.c_ulong(-1)
_Z_PIXMAP = 2
_DEPTH = 24
_FOR_OWNER = 0o1600  # IPC_CREAT, readable and writable
_REMOVE = 0  # IPC_RMID
BYTES = 4  # blue, green, red, and an unused one


class _Display:
    """A connection, and the memory shared over it."""

    def __init__(self):
        self._connection = ctypes.c_void_p(_x.XOpenDisplay(None))
        assert self._connection, "no display"
        self._root = ctypes.c_ulong(_x.XDefaultRootWindow(self._connection))
        self.width = _x.XDisplayWidth(self._connection, 0)
        self._length = BYTES * self.width * _x.XDisplayHeight(self._connection, 0)
        self._segment = _Segment(
            identifier=_c.shmget(0, ctypes.c_size_t(self._length), _FOR_OWNER))
        assert self._segment.identifier >= 0, "no shared memory"
        self._segment.address = _c.shmat(self._segment.identifier, None, 0)
        self._image = _shared.XShmCreateImage(
            self._connection, ctypes.c_void_p(_x.XDefaultVisual(self._connection, 0)), _DEPTH,
            _Z_PIXMAP, ctypes.c_void_p(self._segment.address), ctypes.byref(self._segment),
            self.width, _x.XDisplayHeight(self._connection, 0))
        assert self._image.contents.bytes_per_line == BYTES * self.width
        _shared.XShmAttach(self._connection, ctypes.byref(self._segment))
        _x.XSync(self._connection, False)
        # Frees the segment when its last user ends, even by a crash.
        _c.shmctl(self._segment.identifier, _REMOVE, None)

    def pixels(self):
        assert _shared.XShmGetImage(
            self._connection, self._root, self._image, 0, 0, _ALL_PLANES)
        return ctypes.string_at(self._segment.address, self._length)

    def close(self):
        """Call before the display ends, because Xlib then ends this process."""
        _x.XCloseDisplay(self._connection)
        _c.shmdt(ctypes.c_void_p(self._segment.address))


_open = None


def grab():
    """The whole screen: its width, and the bytes of its pixels row by row."""
    global _open
    _open = _open or _Display()
    return _open.width, _open.pixels()


def close():
    """Call before the display ends."""
    global _open
    if _open:
        _open.close()
    _open = None
