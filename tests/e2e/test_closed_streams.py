# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Programs that are started with closed standard streams. The numbers of these must
not go to sockets, into which libraries would then print their messages."""

import os
import subprocess

import pytest

from harness.panel import PROGRAMS
from harness.waiting import until

CLOSED = ("/bin/bash", "-c", 'exec "$@" 0<&- 1>&- 2>&-', "bash")


def streams(pid):
    return [os.readlink(f"/proc/{pid}/fd/{number}") for number in range(3)]


def test_the_panels_streams_lead_nowhere(launch_alone):
    assert streams(launch_alone(*CLOSED).pid) == ["/dev/null"] * 3


@pytest.mark.usefixtures("fresh_home")
@pytest.mark.parametrize("command", [("quillmark-doctor", "--watch"), ("tovel-agent",)])
def test_the_other_programs_streams_lead_nowhere(command):
    program = PROGRAMS / command[0]
    process = subprocess.Popen([*CLOSED, program, *command[1:]])
    try:
        until(lambda: os.readlink(f"/proc/{process.pid}/exe") == str(program), "the program")
        until(lambda: len(os.listdir(f"/proc/{process.pid}/fd")) >= 3, "its streams")
        assert streams(process.pid) == ["/dev/null"] * 3
        assert process.poll() is None
    finally:
        process.kill()
        process.wait()
