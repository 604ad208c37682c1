# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The option --watch."""

import contextlib
import json
import signal
import subprocess

import pytest

import scene
from harness.backend import Backend
from patience import PATIENCE


@contextlib.contextmanager
def watching(*arguments):
    with subprocess.Popen([scene.DOCTOR, "--watch", *arguments], stdout=subprocess.PIPE,
                          text=True) as doctor:
        try:
            yield doctor
        finally:
            doctor.kill()


def test_fault_that_is_fixed():
    with watching("--json") as doctor:
        assert not json.loads(doctor.stdout.readline())["online"]
        backend = Backend().start()
        # The round that is under way may still see the fault.
        rounds = [json.loads(doctor.stdout.readline()) for _ in range(2)]
        doctor.send_signal(signal.SIGTERM)
        assert doctor.wait(timeout=PATIENCE) == 0
        backend.stop()
    assert rounds[-1]["online"]


@pytest.mark.parametrize("number", [signal.SIGINT, signal.SIGTERM])
def test_exit_code_is_that_of_the_last_round(number):
    with watching() as doctor:
        for line in doctor.stdout:
            if line.startswith("Next step: "):
                break
        doctor.send_signal(number)
        assert doctor.wait(timeout=PATIENCE) == 1


def test_empty_line_between_rounds_of_text(backend):
    with watching() as doctor:
        said = []
        while sum(line.startswith("Next step: ") for line in said) < 2:
            said.append(doctor.stdout.readline())
    end = next(i for i, line in enumerate(said) if line.startswith("Next step: "))
    assert said[end + 1] == "\n"
    assert said[end + 2] == said[0]
