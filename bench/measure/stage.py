# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Programs on a virtual display, and a backend with known data."""

import contextlib
import os
import subprocess
import time
from pathlib import Path

from harness import bodies, tokens
from harness.backend import Backend
from harness.panel import EXECUTABLE
from harness.screen import BUILD
from harness.window import tool

BENCH = BUILD / "bench"
PANEL = (EXECUTABLE,)
FLOOR_QUICK = (str(BENCH / "floor/bench_floor_quick"),)
FLOOR_WIDGETS = (str(BENCH / "floor/bench_floor_widgets"),)
OBSERVER = BENCH / "observer/libbench_observer.so"


def connections(count, turn=0):
    """A list in which the port of every row differs from turn to turn."""
    return bodies.network(*(
        bodies.connection(str((i + turn) % 65536), local_address=f"10.0.{i // 256 % 256}.{i % 256}",
                          pid=str(i % 32768), risk_level="low")
        for i in range(count)
    ))


def full(connection_count=500, turn=0):
    """The bodies that a busy machine's agent answers with."""
    return {
        "status": bodies.status(threat_count=100),
        "alerts": bodies.alerts(*(
            bodies.alert(f"kind {i}", ("high", "medium", "low")[(i + turn) % 3], title=f"Title {i}",
                         description="What was found", file_path=f"/tmp/file-{i}",
                         timestamp="2026-01-02T03:04:05Z")
            for i in range(100)
        )),
        "network": connections(connection_count, turn),
        "inventory": bodies.inventory(
            *(bodies.app(f"Application {i}", version=f"1.{i + turn}", publisher="Somebody")
              for i in range(300)),
            services=[f"service-{i}" for i in range(80)], interfaces=["lo", "eth0"],
            permissions=["cap_net_raw"]),
    }


class Turns:
    """Answers that are created once; the polls get the sets in turn."""

    def __init__(self, backend, *contents):
        from harness.exchange import answer

        self._answers = [{k: answer(v) for k, v in content.items()} for content in contents]
        self._polls = 0
        backend.reply(status=self._begin,
                      **{k: self._next(k) for k in ("alerts", "network", "inventory")})

    def _begin(self, _request):
        self._polls += 1
        return self._answers[self._polls % len(self._answers)]["status"]

    def _next(self, endpoint):
        return lambda _request: self._answers[self._polls % len(self._answers)][endpoint]


@contextlib.contextmanager
def backend(*contents):
    server = Backend().start()
    tokens.write(tokens.HOME, "token")
    Turns(server, *(contents or [full()]))
    try:
        yield server
    finally:
        server.stop()


def first_frame(program, **environment):
    """Starts a program. Returns its process id, the milliseconds to its first frame,
    and those to the last change that follows. The caller ends it."""
    done = subprocess.run(
        [str(BENCH / "start/bench_first_frame"), *program], text=True,
        stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
        env=os.environ | environment, timeout=120, check=True)
    pid, first, last = done.stdout.split()
    return int(pid), float(first), float(last)


def end(pid):
    """Ends by id, because the process is not a child of this one: its parent has exited."""
    with contextlib.suppress(ProcessLookupError):
        os.kill(pid, 15)
    limit = time.monotonic() + 5
    while Path(f"/proc/{pid}").exists() and time.monotonic() < limit:
        time.sleep(0.02)
    with contextlib.suppress(ProcessLookupError):
        os.kill(pid, 9)


@contextlib.contextmanager
def running(program, **environment):
    pid, _, _ = first_frame(program, **environment)
    try:
        yield pid
    finally:
        end(pid)


def key(name):
    tool("xdotool", "key", name)
