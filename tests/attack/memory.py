# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The memory of a process, sampled during an attack."""

import threading
import time
from pathlib import Path

PAGE = 4096
MIB = 1 << 20
SETTLING = 10  # seconds after an attack, in which memory must be freed


def resident(pid):
    """In bytes, from the file that is cheaper to read than the whole status."""
    return int(Path(f"/proc/{pid}/statm").read_text().split()[1]) * PAGE


class Peak:
    """The peak of a process's memory, minus `idle`."""

    def __init__(self, pid, idle):
        self._pid, self._idle = pid, idle
        self._stopped = threading.Event()
        self._thread = threading.Thread(target=self._sample, daemon=True)
        self.above_idle = 0

    def __enter__(self):
        self._thread.start()
        return self

    def __exit__(self, *_):
        self._stopped.set()
        self._thread.join()

    def _sample(self):
        while not self._stopped.is_set():
            self.above_idle = max(self.above_idle, resident(self._pid) - self._idle)
            time.sleep(0.005)
