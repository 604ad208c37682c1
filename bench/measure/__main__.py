# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""measure FOLDER [PART...]: measures all parts, or only those named, and writes
FOLDER/performance.md with the last results of all parts."""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[2] / "tests/e2e"))

from harness.display import Display  # noqa: E402

from . import decode, idle, lists, memory, peers, poll, start, tabs  # noqa: E402
from .report import Report  # noqa: E402

PARTS = {"start": start, "memory": memory, "idle": idle, "poll": poll, "decode": decode,
         "lists": lists, "tabs": tabs, "peers": peers}

PREFACE = """<!--
SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
SPDX-License-Identifier: GPL-3.0-or-later
-->
# Performance

What the panel costs, measured by `bench/run`: medians, with the quartiles in brackets
where the spread matters. Every figure is next to that of a minimal program or of another
program that was measured at the same time: the machine decides the raw figures,
only the ratios can be compared."""


def measure(name, file):
    report = Report()
    PARTS[name].run(report)
    report.save(file)


def main(folder, *parts):
    files = {name: Path(folder) / f"{name}.json" for name in PARTS}
    display = Display(2600, 1500)
    try:
        for name in parts or PARTS:
            measure(name, files[name])
    finally:
        display.stop()
        report = Report()
        for file in files.values():
            if file.exists():
                report.add(file)
        report.write(Path(folder) / "performance.md", PREFACE)


main(*sys.argv[1:])
