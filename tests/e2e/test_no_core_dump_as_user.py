# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A crash leaves no copy of the token, and the panel can still be debugged."""

import re
import subprocess
from pathlib import Path

import pytest

from harness.panel import PROGRAMS
from harness.processes import AGENT
from harness.waiting import until

# The user may have allowed core dumps, for other programs.
ALLOWED = ("/usr/bin/prlimit", "--core=1048576:unlimited")
# With a limit of 1 Linux neither writes a file nor passes a dump to a crash reporter.
NONE = ("1", "unlimited")


def core_limits(pid):
    text = Path(f"/proc/{pid}/limits").read_text()
    return re.search(r"^Max core file size\s+(\w+)\s+(\w+)", text, re.MULTILINE).groups()


def test_the_panel_leaves_no_core_dump(launch_alone):
    assert core_limits(launch_alone(*ALLOWED).pid) == NONE


@pytest.mark.usefixtures("fresh_home")
@pytest.mark.parametrize("command", [[AGENT], ["quillmark-doctor", "--watch"]])
def test_the_other_programs_leave_no_core_dump(command):
    with subprocess.Popen([*ALLOWED, PROGRAMS / command[0], *command[1:]],
                          stdout=subprocess.DEVNULL) as program:
        try:
            until(lambda: core_limits(program.pid) == NONE, "no core dumps")
        finally:
            program.kill()


def test_not_even_where_no_limit_may_be_set(launch_alone):
    panel = launch_alone("/usr/bin/prlimit", "--core=0:0")
    assert core_limits(panel.pid) == ("0", "0")
    # The system dumps no process that it hides from its user.
    with pytest.raises(PermissionError):
        Path(f"/proc/{panel.pid}/environ").read_bytes()


def test_the_panels_user_can_still_debug_it(launch_alone):
    panel = launch_alone()
    # Otherwise its files in /proc would belong to root, and its user could not read them.
    assert Path(f"/proc/{panel.pid}/environ").read_bytes()
