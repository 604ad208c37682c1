# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The options and results of a run, in a file that the next run can continue."""

import dataclasses
import json
from collections import Counter

from .judge import KILLED, NOT_BUILT, SURVIVED, TIMED_OUT, Verdict
from .mutations import Mutant


class Results:
    def __init__(self, path, options):
        """Starts a new file with `options`; without them, continues the existing one."""
        self._path = path
        self._verdicts = {}
        if options:
            path.write_text(json.dumps(options) + "\n")
        self.options, *entries = map(json.loads, path.read_text().splitlines())
        for entry in entries:
            self._verdicts[Mutant(**entry["mutant"])] = Verdict(**entry["verdict"])

    def __contains__(self, mutant):
        return mutant in self._verdicts

    def add(self, mutant, verdict):
        self._verdicts[mutant] = verdict
        entry = {"mutant": dataclasses.asdict(mutant), "verdict": dataclasses.asdict(verdict)}
        with self._path.open("a") as file:
            file.write(json.dumps(entry) + "\n")

    @property
    def counted(self):
        return sum(verdict.fate != NOT_BUILT for verdict in self._verdicts.values())

    def summary(self):
        fates = Counter(verdict.fate for verdict in self._verdicts.values())
        lines = [described(mutant, verdict) for mutant, verdict in self._verdicts.items()
                 if verdict.fate == SURVIVED]
        lines.append(f"{self.counted} mutants: "
                     + ", ".join(f"{fates[fate]} {fate}" for fate in (KILLED, TIMED_OUT, SURVIVED))
                     + f"; {fates[NOT_BUILT]} more not built")
        return "\n".join(lines)


def described(mutant, verdict):
    by = f" by {verdict.test}" if verdict.test else ""
    return (f"{verdict.fate}{by}: {mutant.file}:{mutant.line}\n"
            f"  - {mutant.before.strip()}\n  + {mutant.after.strip()}")
