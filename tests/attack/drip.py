# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""drip OUTPUT [MINUTES]: uses the panel while the agent sends a byte every two seconds
and the panel can open only a few files more, and writes the figures as JSON."""

import json
import os
import resource
import sys
import time
from collections import Counter
from pathlib import Path

from harness import bodies, settings, tokens
from harness.display import Display
from harness.panel import TABS, Panel
from harness.waiting import until

from .attacker import Attacker
from .attacks import OK, drip

SPARE_DESCRIPTORS = 24
SIZES = ((1000, 700), (1200, 900))
ATTACK = drip(OK + b"Content-Length: 1000000\r\n\r\n" + b" " * 1000, pause=2.0)


def descriptors(pid):
    return sorted(int(name) for name in os.listdir(f"/proc/{pid}/fd"))


def limit_descriptors(pid):
    _, hard = resource.prlimit(pid, resource.RLIMIT_NOFILE)
    limit = descriptors(pid)[-1] + 1 + SPARE_DESCRIPTORS
    resource.prlimit(pid, resource.RLIMIT_NOFILE, (limit, hard))
    return limit


def use(panel, turn):
    """Visits all tabs, resizes the window and saves; returns the message of Save."""
    size = SIZES[turn % len(SIZES)]
    panel.window.resize(*size)
    until(lambda: panel.window.box[2:] == size, "the new size")
    for tab in TABS:
        panel.show(tab)
    panel.tree.wait_for("group", "Quick Setup")
    settings.fill(panel, settings.KEY, f"key{turn}")
    settings.press(panel, settings.SAVE)
    until(lambda: settings.message(panel), "a message")
    message = settings.message(panel)
    if message == settings.SAVED:
        assert f'api_key = "key{turn}"' in settings.CONFIG.read_text()
    return message


def main(output, minutes="10"):
    display = Display()
    settings.clean_home()
    tokens.write(tokens.HOME, "token")
    server = Attacker(**bodies.everyday()).start()
    panel = Panel().opened()
    good = bodies.everyday()["status"]["status"].upper()
    panel.tree.wait_for("text", good)
    limit = limit_descriptors(panel.pid)

    messages, used, slowest = Counter(), [], 0
    with server.attacking(ATTACK):
        end = time.monotonic() + 60 * float(minutes)
        while (begun := time.monotonic()) < end:
            messages[use(panel, len(used))] += 1
            slowest = max(slowest, time.monotonic() - begun)
            used.append(len(descriptors(panel.pid)))
            time.sleep(5)
        panel.tree.wait_for("text", "OFFLINE")
    begun = time.monotonic()
    panel.tree.wait_for("text", good)
    figures = {"minutes": float(minutes), "limit": limit, "most_descriptors": max(used),
               "turns": len(used), "slowest_turn_s": slowest, "messages": messages,
               "seconds_to_good": time.monotonic() - begun}
    panel.finish()
    server.stop()
    display.stop()
    print(json.dumps(figures, ensure_ascii=False), flush=True)
    Path(output).write_text(json.dumps(figures, indent=1, ensure_ascii=False) + "\n")


main(*sys.argv[1:])
