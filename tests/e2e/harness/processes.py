# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The sandbox's processes, read from /proc without running anything.

A search tool run by the tests would have the agent's name on its own command
line and find itself.
"""

import os
import signal
from dataclasses import dataclass
from pathlib import Path

from .waiting import until

AGENT = "tovel-agent"


@dataclass(frozen=True)
class Process:
    pid: int
    parent: int
    state: str
    command: str
    environment: str

    def ended(self):
        return not Path(f"/proc/{self.pid}").exists()


def _text(path):
    """Empty if it cannot be read, such as that of a zombie."""
    try:
        return path.read_bytes().replace(b"\0", b" ").decode(errors="replace")
    except OSError:
        return ""


def _process(folder):
    try:
        state, parent = (folder / "stat").read_text().rpartition(")")[2].split()[:2]
        return Process(int(folder.name), int(parent), state, _text(folder / "cmdline"),
                       _text(folder / "environ"))
    except OSError:
        return None  # It ended meanwhile.


def every():
    found = (_process(folder) for folder in Path("/proc").iterdir() if folder.name.isdigit())
    return [process for process in found if process]


def agents():
    """Running agents, not the shells that started them."""
    return [p for p in every() if p.command.startswith(f"./{AGENT}") and p.state != "Z"]


def named():
    """Every process with the agent's name anywhere on its command line."""
    return [p for p in every() if AGENT in p.command]


def held(pid):
    """Descriptors and threads."""
    return tuple(len(list(Path(f"/proc/{pid}/{what}").iterdir())) for what in ("fd", "task"))


def below(pid):
    """Children, their children and so on."""
    processes = every()
    found = {pid}
    while more := {p.pid for p in processes if p.parent in found} - found:
        found |= more
    return [p for p in processes if p.pid in found and p.pid != pid]


def end_agents(number=signal.SIGTERM):
    """From outside the panel, one by one."""
    for process in named():
        try:
            os.kill(process.pid, number)
        except ProcessLookupError:
            pass
    until(lambda: not named(), "the agents to end")
