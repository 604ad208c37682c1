# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A program whose UI thread is logged by the preloaded observer."""

import tempfile
from pathlib import Path

from . import stage


class Observed:
    def __init__(self, program, **environment):
        self._program = program
        self._preload = f"{stage.OBSERVER} {environment.pop('LD_PRELOAD', '')}"
        self._environment = environment

    def __enter__(self):
        self._folder = tempfile.TemporaryDirectory()
        self._log = Path(self._folder.name) / "observed"
        self.pid, _, _ = stage.first_frame(
            self._program, **self._environment,
            LD_PRELOAD=self._preload, QUILLMARK_OBSERVER=str(self._log))
        return self

    def __exit__(self, *_):
        stage.end(self.pid)
        self._folder.cleanup()

    def _lines(self, kind):
        for line in self._log.read_text().splitlines():
            word, *values = line.split()
            if word == kind:
                yield [float(value) for value in values]

    def frames(self):
        return [time for time, in self._lines("frame")]

    def busy(self, since=0.0):
        """Start and length, in seconds, of the UI thread's busy spans that ended after `since`."""
        return [(start, span) for start, span in self._lines("busy") if start + span > since]
