# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Key presses, pointer actions and questions through one xdotool for each display. A new
process for each would take longer than what it does."""

import os
import re
import subprocess
import tty

# Its answer follows the answer to the command before it, also after a failure.
_LAST = "getmouselocation"
_LAST_ANSWER = re.compile(r"x:-?\d+ y:-?\d+ screen:\d+ window:\d+\n$")


class _Xdotool:
    def __init__(self):
        # To anything but a terminal, it writes its answers only when it ends.
        self._answers, terminal = os.openpty()
        tty.setraw(terminal)
        self._process = subprocess.Popen(
            ["xdotool", "-"], stdin=subprocess.PIPE, stdout=terminal, stderr=subprocess.DEVNULL,
        )
        os.close(terminal)

    def do(self, words):
        self._process.stdin.write(f"{' '.join(words)}\n{_LAST}\n".encode())
        self._process.stdin.flush()
        answer = ""
        while not (end := _LAST_ANSWER.search(answer)):
            answer += os.read(self._answers, 4096).decode()
        return answer[:end.start()]

    def close(self):
        self._process.kill()
        self._process.wait()
        os.close(self._answers)


_current = None


def do(*words):
    """Returns what the command prints: nothing, if it fails."""
    global _current
    _current = _current or _Xdotool()
    try:
        return _current.do(words)
    except OSError:  # There is no display, or the window is gone: this ends xdotool.
        close()
        return ""


def close():
    """Before the display ends, or to use another one."""
    global _current
    if _current:
        _current.close()
    _current = None
