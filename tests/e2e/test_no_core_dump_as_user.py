# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A crash leaves no copy of the token behind, and debugging stays possible."""

import re
from pathlib import Path


def core_limits(pid):
    text = Path(f"/proc/{pid}/limits").read_text()
    return re.search(r"^Max core file size\s+(\w+)\s+(\w+)", text, re.MULTILINE).groups()


def test_the_panel_leaves_no_core_dump(launch_alone):
    # Whoever starts it may well want one of everything else.
    panel = launch_alone("/usr/bin/prlimit", "--core=1048576:unlimited")
    assert core_limits(panel.pid) == ("0", "unlimited")


def test_whoever_owns_the_panel_may_still_look_into_it(launch_alone):
    panel = launch_alone()
    # Else its files in there would belong to root and be closed to its user.
    assert Path(f"/proc/{panel.pid}/environ").read_bytes()
