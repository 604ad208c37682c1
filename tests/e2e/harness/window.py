# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Top-level windows as the X server and the window manager know them."""

import re
import subprocess
from typing import NamedTuple

from . import xdotool
from .waiting import until


class Box(NamedTuple):
    x: int
    y: int
    width: int
    height: int

    @property
    def centre(self):
        return self.x + self.width // 2, self.y + self.height // 2

    @property
    def right(self):
        return self.x + self.width

    @property
    def bottom(self):
        return self.y + self.height

    def holds(self, other):
        return (
            self.x <= other.x and other.right <= self.right
            and self.y <= other.y and other.bottom <= self.bottom
        )


def tool(*command):
    done = subprocess.run(command, capture_output=True, text=True)
    return done.stdout if done.returncode == 0 else ""


def visible(pid):
    found = tool("xdotool", "search", "--all", "--onlyvisible", "--pid", str(pid),
                 "--name", "^Quillmark Agent$")
    return [Window(int(line)) for line in found.split()]


def active_process():
    """The process of the active window; None if no window is active."""
    found = xdotool.do("getactivewindow", "getwindowpid").strip()
    return int(found) if found else None


def on_the_display():
    """All of them, mapped or not, with the state of those that have the panel's name."""
    tree = tool("xwininfo", "-root", "-tree")
    panels = re.findall(r'(0x\w+) "Quillmark Agent"', tree)
    return tree + "".join(tool("xwininfo", "-stats", "-wm", "-id", panel) for panel in panels)


class Window:
    def __init__(self, identifier):
        self.identifier = identifier

    def __eq__(self, other):
        return self.identifier == other.identifier

    @property
    def box(self):
        """The drawn area, in screen coordinates."""
        shown = tool("xwininfo", "-id", str(self.identifier))
        names = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")
        return Box(*(int(re.search(rf"{n}: +(-?\d+)", shown)[1]) for n in names))

    def property(self, name):
        return tool("xprop", "-id", str(self.identifier), name).partition("=")[2].strip()

    def states(self):
        return self.property("_NET_WM_STATE")

    def mapped(self):
        return "IsViewable" in tool("xwininfo", "-id", str(self.identifier))

    def resize(self, width, height):
        tool("xdotool", "windowsize", str(self.identifier), str(width), str(height))

    def move(self, x, y):
        tool("xdotool", "windowmove", str(self.identifier), str(x), str(y))

    def settled(self):
        """Waits until the window manager has moved and resized it."""
        seen = []

        def still():
            seen.append(self.box)
            return len(seen) > 2 and seen[-1] == seen[-2] == seen[-3] and seen[-1]

        return until(still, "the window to stop moving", step=0.15)

    def minimise(self):
        tool("xdotool", "windowminimize", str(self.identifier))
        until(lambda: not self.mapped(), "the window to be minimised")

    def restore(self):
        tool("xdotool", "windowactivate", "--sync", str(self.identifier))
        until(self.mapped, "the window to be back")

    def active(self):
        return xdotool.do("getactivewindow").strip() == str(self.identifier)

    def topmost(self):
        order = tool("xprop", "-root", "_NET_CLIENT_LIST_STACKING").split(" ")
        return order[-1].strip() == hex(self.identifier)
