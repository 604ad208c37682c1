# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The system calls of an action, and running it with some of them disturbed."""

import os
import pathlib
import re
import subprocess
import tempfile
from typing import NamedTuple

import pytest

from patience import PATIENCE

# The driver makes this call before and after the action.
FRAME = "getppid"
# For memory and threads: they use no file, and their failure means that there is no
# memory left.
NOT_OF_FILES = {
    "brk", "mmap", "munmap", "mremap", "mprotect", "madvise", "futex",
    "rt_sigprocmask", "rt_sigaction", "sched_yield",
}  # fmt: skip
# The C library makes this call for the name of a temporary file only in a few runs
# out of a hundred.
SOMETIMES = "GRND_NONBLOCK"
# A sanitizer cannot detect leaks in a process that is traced.
SANITIZERS = {"ASAN_OPTIONS": "detect_leaks=0"}


class Call(NamedTuple):
    """The `ordinal`th call of that name that the process makes."""

    name: str
    ordinal: int


class Fault(NamedTuple):
    call: Call
    effect: str  # as strace takes it: "error=EIO", "signal=SIGKILL"

    def __str__(self):
        return f"{self.call.name}-{self.call.ordinal}-{self.effect.partition('=')[2]}"


class Run(NamedTuple):
    message: str  # the message for the user; empty if killed before it
    killed: bool
    calls: list  # those of the action, in order
    disturbed: list  # those with a fault


def _injections(faults):
    """One option for each name of a call: a second one would replace the first."""
    for name in {fault.call.name for fault in faults}:
        of_name = sorted(f.call.ordinal for f in faults if f.call.name == name)
        effects = {f.effect for f in faults if f.call.name == name}
        assert len(effects) == 1 and len(of_name) <= 2
        step = max(of_name[-1] - of_name[0], 1)
        yield f"--inject={name}:{effects.pop()}:when={of_name[0]}..{of_name[-1]}+{step}"


def _calls(trace):
    """The calls of the action, and those with a fault, of the process's first thread."""
    counts = {}
    inside = False
    found, disturbed = [], []
    lines = trace.splitlines()
    first_thread = lines[0].split()[0]
    for line in lines:
        match = re.match(r"(\d+) +(\w+)\(", line)
        if not match or match[1] != first_thread:
            continue
        name = match[2]
        counts[name] = counts.get(name, 0) + 1
        call = Call(name, counts[name])
        if name == FRAME:
            inside = not inside
        elif inside and name not in NOT_OF_FILES and SOMETIMES not in line:
            found.append(call)
        if "(INJECTED)" in line:
            assert inside, f"disturbed outside the action: {line}"
            disturbed.append(call)
    return found, disturbed


def run(command, home, faults=()):
    """Runs `command` with these faults."""
    with tempfile.NamedTemporaryFile(prefix="trace-") as trace:
        outcome = subprocess.run(
            ["strace", "-f", "-qq", "-o", trace.name, *_injections(faults), *command],
            env={**os.environ, **SANITIZERS, "HOME": str(home)},
            stdout=subprocess.PIPE,
            text=True,
            timeout=PATIENCE,
            check=False,
        )
        text = pathlib.Path(trace.name).read_text()
    # strace ends by the signal that ended the process.
    killed = outcome.returncode in (-9, 137)
    assert killed or outcome.returncode == 0, f"ended with {outcome.returncode}:\n{text[-3000:]}"
    return Run(outcome.stdout.strip(), killed, *_calls(text))


def cases(scenes, effects):
    """Every fault of every scene, as parameters `name, fault` of a test."""
    return [
        pytest.param(name, fault, id=f"{name}-{fault}")
        for name, scene in scenes.items()
        for fault in faults_of(scene, effects)
    ]


def faults_of(scene, effects):
    """Every fault for the calls of an undisturbed run. `effects` returns the kinds
    of faults for a call."""
    scene.set_up()
    return [
        Fault(call, effect)
        for call in run(scene.command, scene.home).calls
        for effect in effects(call)
    ]
