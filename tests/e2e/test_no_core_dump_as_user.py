# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A crash leaves no copy of the token, and the panel can still be debugged."""

import re
from pathlib import Path


def core_limits(pid):
    text = Path(f"/proc/{pid}/limits").read_text()
    return re.search(r"^Max core file size\s+(\w+)\s+(\w+)", text, re.MULTILINE).groups()


def test_the_panel_leaves_no_core_dump(launch_alone):
    # The user may have allowed core dumps, for other programs.
    panel = launch_alone("/usr/bin/prlimit", "--core=1048576:unlimited")
    assert core_limits(panel.pid) == ("0", "unlimited")


def test_the_panels_user_can_still_debug_it(launch_alone):
    panel = launch_alone()
    # Otherwise its files in /proc would belong to root, and its user could not read them.
    assert Path(f"/proc/{panel.pid}/environ").read_bytes()
