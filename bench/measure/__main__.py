# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""measure OUTPUT [PART...]: measures all parts, or those named."""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).parents[2] / "tests/e2e"))

from harness.display import Display

from . import decode, idle, lists, memory, peers, poll, start, tabs
from .report import Report

PARTS = {"start": start, "memory": memory, "idle": idle, "poll": poll, "decode": decode,
         "lists": lists, "tabs": tabs, "peers": peers}

PREFACE = """<!--
SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
SPDX-License-Identifier: GPL-3.0-or-later
-->
# Performance

What the panel costs, measured by `bench/run`: medians, and where spread is told
the quartiles in brackets. Every figure stands beside one of a floor or of another
program that was measured in the same run: the machine decides the raw figures,
the ratios are what the panel answers for."""


def main(output, *parts):
    report = Report()
    display = Display(2600, 1500)
    try:
        for name in parts or PARTS:
            PARTS[name].run(report)
    finally:
        display.stop()
    report.write(output, PREFACE)


main(*sys.argv[1:])
