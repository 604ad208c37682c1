# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The wall clock of programs that are launched with `environment`. Durations are real."""

from pathlib import Path


class Clock:
    def __init__(self, folder):
        (library,) = Path("/usr/lib").glob("*/faketime/libfaketime.so.1")
        self._file = Path(folder) / "clock"
        self.set("+0")
        self.environment = {
            "LD_PRELOAD": str(library), "FAKETIME_TIMESTAMP_FILE": str(self._file),
            "FAKETIME_NO_CACHE": "1", "FAKETIME_DONT_FAKE_MONOTONIC": "1",
        }

    def set(self, offset):
        """From the real time on, such as "-1d" or "+10y"."""
        self._file.write_text(offset + "\n")
