# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Finds out whether a test detects a mutant."""

import time
from dataclasses import dataclass

from . import suites

PATIENCE = 10  # times as long as a test took when it passed
SHORTEST, LONGEST = 60, 600  # seconds; the latter for a test that has not passed yet

KILLED, TIMED_OUT, SURVIVED, NOT_BUILT = "killed", "timed out", "survived", "not built"


@dataclass(frozen=True)
class Verdict:
    fate: str
    test: str = ""  # which detected it


class Judge:
    """Only a test that passes without a mutant may kill one."""

    def __init__(self, tree):
        self._tree = tree
        self._seconds = {}  # of the tests that have passed
        self.unsound = set()

    def __call__(self, mutant):
        while True:
            with self._tree.mutated(mutant):
                verdict, test = self._meets(mutant)
            if test is None or test.name in self._seconds:
                return verdict
            if not self._tree.make(*test.targets):
                raise RuntimeError(f"does not build without a mutant, see {self._tree.log}")
            if self._run(test) == 0:
                return verdict
            self.unsound.add(test.name)

    def _meets(self, mutant):
        """The verdict, and the test that detected the mutant."""
        for test in suites.of(mutant.file):
            if test.name in self.unsound:
                continue
            if not self._tree.make(*test.targets):
                return Verdict(NOT_BUILT), None
            code = self._run(test)
            if code not in (0, None):
                code = self._run(test)  # Random failures rarely happen twice.
            if code != 0:
                return Verdict(TIMED_OUT if code is None else KILLED, test.name), test
        return Verdict(SURVIVED), None

    def _run(self, test):
        known = self._seconds.get(test.name)
        started = time.monotonic()
        code = self._tree.run(test.command,
                              max(SHORTEST, PATIENCE * known) if known else LONGEST)
        if code == 0:
            self._seconds[test.name] = time.monotonic() - started
        return code
