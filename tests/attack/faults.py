# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""faults OUTPUT [MINUTES [SEED]]: uses the panel while faults of all kinds come in random
order, and writes the figures as JSON. After each fault the good values must be back."""

import contextlib
import json
import os
import random
import signal
import sys
import tempfile
import time
from collections import Counter
from pathlib import Path

from harness import tokens, window
from harness.bus import Bus
from harness.clock import Clock
from harness.display import Display
from harness.processes import held
from harness.screen import Picture
from harness.waiting import until
from measure import stage
from measure.observed import Observed

from .attacker import Attacker
from .attacks import TAB, every
from .memory import MIB, SETTLING, resident

SIZE = (1000, 700)


class Scene:
    """The panel, and what it depends on."""

    def __init__(self, folder, chance):
        self.folder, self.chance = folder, chance
        self.server = Attacker().start()
        self.clock = Clock(folder)
        self.bus = Bus(folder)
        self.panel = None

    def environment(self):
        return self.clock.environment | {"DBUS_SESSION_BUS_ADDRESS": self.bus.address}

    def use(self, seconds):
        """Visits tabs and resizes the window for that long."""
        end = time.monotonic() + seconds
        while (left := end - time.monotonic()) > 0:
            stage.key(f"ctrl+{self.chance.randint(1, 5)}")
            for shown in window.visible(self.panel.pid):
                shown.resize(self.chance.randint(800, 1400), self.chance.randint(600, 1000))
            time.sleep(min(left, 2.0))

    @contextlib.contextmanager
    def agent_gone(self):
        self.server.stop()
        yield
        self.server.start()

    @contextlib.contextmanager
    def clock_moved(self):
        self.clock.set(self.chance.choice(("-1d", "-1h", "+1h", "+30d", "+10y")))
        yield
        self.clock.set("+0")

    @contextlib.contextmanager
    def bus_hangs(self):
        self.bus.hang(True)
        yield
        self.bus.hang(False)

    @contextlib.contextmanager
    def bus_gone(self):
        self.bus.stop()
        yield
        self.bus = Bus(self.folder)

    @contextlib.contextmanager
    def asleep(self):
        os.kill(self.panel.pid, signal.SIGSTOP)
        yield
        os.kill(self.panel.pid, signal.SIGCONT)

    def faults(self):
        """All faults by name."""
        found = {name: lambda attack=attack: self.server.attacking(attack)
                 for name, attack in every().items()}
        return found | {"agent gone": self.agent_gone, "clock moved": self.clock_moved,
                        "bus hangs": self.bus_hangs, "bus gone": self.bus_gone,
                        "machine asleep": self.asleep}

    def picture(self):
        stage.key(TAB)
        for shown in window.visible(self.panel.pid):
            shown.resize(*SIZE)
            shown.move(0, 0)
        return Picture().whole()

    def sample(self):
        descriptors, threads = held(self.panel.pid)
        return {"mib": resident(self.panel.pid) / MIB, "descriptors": descriptors,
                "threads": threads}


def under_faults(scene, minutes):
    faults = scene.faults()
    scene.server.wait_for_poll()
    scene.picture()
    time.sleep(SETTLING)
    good = scene.picture()
    begun = time.monotonic()
    samples, met, slowest = [scene.sample()], Counter(), 0
    warm = None
    while time.monotonic() < begun + 60 * minutes:
        name = scene.chance.choice(list(faults))
        with faults[name]():
            scene.use(scene.chance.uniform(3, 20))
        ended = time.monotonic()
        until(lambda: scene.picture() == good, f"the good values after {name}", step=0.1)
        slowest = max(slowest, time.monotonic() - ended)
        met[name] += 1
        # Caches fill in the first sixth of the time.
        if warm is None and time.monotonic() > begun + 60 * minutes / 6:
            time.sleep(SETTLING)
            warm = scene.sample()
        samples.append(scene.sample())
    time.sleep(SETTLING)
    busy = scene.panel.busy(begun)
    return {
        "minutes": minutes,
        "faults": met,
        "start": samples[0],
        "after_a_sixth": warm,
        "end": scene.sample(),
        "most": {key: max(sample[key] for sample in samples) for key in samples[0]},
        "longest_gap_ms": 1000 * max(span for _, span in busy),
        "gaps_above_50_ms": sum(span > 0.05 for _, span in busy),
        "slowest_to_good_s": slowest,
    }


def main(output, minutes="60", seed="1"):
    display = Display()
    tokens.write(tokens.HOME, "token")
    with tempfile.TemporaryDirectory() as folder:
        scene = Scene(folder, random.Random(int(seed)))
        with Observed(stage.PANEL, **scene.environment()) as scene.panel:
            figures = under_faults(scene, float(minutes))
        scene.server.stop()
        scene.bus.stop()
    display.stop()
    print(json.dumps(figures), flush=True)
    Path(output).write_text(json.dumps(figures, indent=1) + "\n")


main(*sys.argv[1:])
