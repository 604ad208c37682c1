# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Command lines of the programs, which need neither display nor session."""

import os
import re
import subprocess

import pytest

from harness import processes
from harness.panel import EXECUTABLE
from harness.screen import BUILD
from patience import PATIENCE

PROGRAMS = {
    "quillmark-agent": EXECUTABLE,
    processes.AGENT: str(BUILD / "QuillmarkAgent.app/Contents/MacOS" / processes.AGENT),
}
every_program = pytest.mark.parametrize("name", PROGRAMS)


def run(name, *arguments):
    hidden = ("DISPLAY", "WAYLAND_DISPLAY", "DBUS_SESSION_BUS_ADDRESS", "QT_QPA_PLATFORM")
    environment = {k: v for k, v in os.environ.items() if k not in hidden}
    return subprocess.run(
        [PROGRAMS[name], *arguments], capture_output=True, text=True, timeout=PATIENCE,
        env=environment,
    )


@every_program
@pytest.mark.parametrize("option", ["--help", "-h"])
def test_help(name, option):
    done = run(name, option)
    assert (done.returncode, done.stderr) == (0, "")
    assert done.stdout.startswith(f"Usage: {name} [OPTION]\n")
    assert "--version" in done.stdout


@every_program
@pytest.mark.parametrize("option", ["--version", "-V"])
def test_version(name, option):
    done = run(name, option)
    assert (done.returncode, done.stderr) == (0, "")
    assert re.fullmatch(rf"{name} \d+\.\d+\.\d+\n", done.stdout)


@every_program
@pytest.mark.parametrize("option", ["--help", "--version"])
def test_output_that_cannot_be_written(name, option):
    with open("/dev/full", "w", encoding="utf-8") as full:
        assert subprocess.run([PROGRAMS[name], option], stdout=full, check=False).returncode == 1


@every_program
@pytest.mark.parametrize("arguments, reason", [
    (["--wrong"], "unknown option '--wrong'"),
    (["-x"], "unknown option '-x'"),
    (["--help=me"], "unknown option '--help=me'"),
    (["file.toml"], "unexpected argument 'file.toml'"),
    (["--", "--help"], "unexpected argument '--help'"),
    ([""], "unexpected argument ''"),
])
def test_wrong_arguments(name, arguments, reason):
    done = run(name, *arguments)
    assert (done.returncode, done.stdout) == (2, "")
    assert done.stderr == f"{name}: {reason}\n{run(name, '--help').stdout}"


def test_session_managers_option_is_left_to_the_toolkit():
    assert run("quillmark-agent", "-session", "10a0_1", "--version").returncode == 0
    done = run("quillmark-agent", "-session")
    assert done.returncode == 2
    assert done.stderr.startswith("quillmark-agent: a value is missing after '-session'\n")
