# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""attack OUTPUT [WORD...]: measures the panel under every attack, or those whose
names contain one of the words, and writes the figures as JSON. The other figures in
OUTPUT are kept."""

import json
import sys
import time
from pathlib import Path

from harness import tokens
from harness.display import Display
from harness.screen import Picture
from harness.waiting import until
from measure import stage
from measure.observed import Observed

from .attacker import Attacker
from .attacks import TAB, every
from .memory import MIB, SETTLING, Peak, resident

SECONDS = 12


def settled_picture(server):
    server.wait_for_poll()
    time.sleep(1)
    return Picture().whole()


def under(attack, server, panel):
    good = settled_picture(server)
    time.sleep(SETTLING)
    idle = resident(panel.pid)
    since = time.monotonic()
    with Peak(panel.pid, idle) as peak:
        with server.attacking(attack):
            time.sleep(SECONDS)
            ended = time.monotonic()
        # Old values may still be shown; new ones need a whole poll.
        server.wait_for_poll()
        until(lambda: Picture().whole() == good, "the good values again", step=0.1)
        recovered = time.monotonic() - ended
    time.sleep(max(0.0, ended + SETTLING - time.monotonic()))
    busy = [span for _, span in panel.busy(since)]
    return {
        "idle_mib": idle / MIB,
        "peak_above_idle_mib": peak.above_idle / MIB,
        "kept_mib": (resident(panel.pid) - idle) / MIB,
        "longest_gap_ms": 1000 * max(busy, default=0),
        "gaps_above_50_ms": sum(span > 0.05 for span in busy),
        "seconds_to_good": recovered,
    }


def main(output, *words):
    output = Path(output)
    figures = json.loads(output.read_text()) if words and output.exists() else {}
    display = Display()
    tokens.write(tokens.HOME, "token")
    for name, attack in every().items():
        if words and not any(word in name for word in words):
            continue
        # With rows in view that all become what the attack sends.
        server = Attacker(**stage.full()).start()
        with Observed(stage.PANEL) as panel:
            stage.key(TAB)
            figures[name] = under(attack, server, panel)
        server.stop()
        print(name, {k: round(v, 1) for k, v in figures[name].items()}, flush=True)
        output.write_text(json.dumps(figures, indent=1) + "\n")
    display.stop()


main(*sys.argv[1:])
