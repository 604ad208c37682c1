# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Home paths and host names with special characters."""

import re
from pathlib import Path

import pytest

from harness import processes, settings
from harness.waiting import never, until

pytestmark = pytest.mark.usefixtures("fresh_home")


@pytest.mark.parametrize("host, identity, machine", [
    ("Ann's Mac", "macos-Ann's Mac-", "Ann's Mac"),
    ("", "macos-device-", "macos-device"),
])
def test_computer_name_is_used_as_it_is(launch_alone, host, identity, machine):
    name = (f"import os, socket, sys; socket.sethostname({host!r}); "
            "os.execv(sys.argv[1], sys.argv[1:])")
    panel = launch_alone("unshare", "--user", "--map-root-user", "--uts",
                         "/usr/bin/python3", "-c", name)
    panel.show("Settings")
    settings.fill(panel, settings.KEY, "k")
    settings.press(panel, settings.SAVE)
    until(settings.CONFIG.exists, "the configuration")
    text = settings.CONFIG.read_text()
    assert re.search(rf'^agent_id = "{identity}[0-9A-F]{{8}}"$', text, re.MULTILINE)
    assert f'\nmachine_identifier = "{machine}"\n' in text


def test_space_in_the_home_path(launch_alone, tmp_path):
    """The path of the log is not quoted: the shell uses only its first word."""
    home = Path(f"{tmp_path}/of Ann")
    (home / ".quillmark" / "logs").mkdir(parents=True)
    Path(f"{tmp_path}/of").mkdir()
    panel = launch_alone(HOME=str(home))
    panel.expected_output = r".*/of: Is a directory\n"
    panel.show("Settings")
    settings.press(panel, settings.START)
    until(lambda: "Is a directory" in panel.output(), "the shell's error message")
    never(lambda: processes.agents() or panel.tree.find("text", settings.RUNNING),
          "something started", seconds=2.5)
    # The rest of the tab is not affected.
    settings.fill(panel, settings.KEY, "k")
    settings.press(panel, settings.SAVE)
    written = home / ".config" / "quillmark" / "config.toml"
    until(written.exists, "the configuration")
    assert f'quarantine_path = "{home}/.quillmark/quarantine"\n' in written.read_text()
