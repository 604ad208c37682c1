# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A virtual X display with a window manager."""

import os
import subprocess

from . import pixels, xdotool
from .waiting import until


class Display:
    def __init__(self, width=1600, height=1200, manager=True):
        read, write = os.pipe()
        self._server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write), "-screen", "0", f"{width}x{height}x24",
             "-nolisten", "tcp", "-noreset"],
            pass_fds=[write], stderr=subprocess.DEVNULL,
        )
        os.close(write)
        with os.fdopen(read) as ready:
            self.name = ":" + ready.readline().strip()
        assert self.name != ":", "the virtual display did not start"
        os.environ["DISPLAY"] = self.name
        self._manager = None
        if manager:
            self._manager = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
            until(self._managed, "the window manager")

    def stop(self):
        pixels.close()
        xdotool.close()
        for process in filter(None, (self._manager, self._server)):
            process.terminate()
            process.wait()

    def _managed(self):
        shown = subprocess.run(
            ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True, text=True
        )
        return "window id" in shown.stdout
