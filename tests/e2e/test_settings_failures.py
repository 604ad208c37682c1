# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What the tab shows when the programs it needs cannot be started."""

import shutil

import pytest

from harness import processes, settings
from harness.panel import EXECUTABLE
from harness.settings import START, STOP

pytestmark = pytest.mark.usefixtures("fresh_home")

DENIED = "❌ Error: Permission denied"


@pytest.fixture
def launch_without(launch_alone):
    """A panel on its Settings tab, where this program may not be run."""

    def start(program):
        bar = f'mount --bind /dev/null {program} && exec "$0"'
        panel = launch_alone("unshare", "--user", "--map-root-user", "--mount",
                             "/bin/sh", "-c", bar)
        panel.show("Settings")
        return panel

    return start


def test_no_shell(launch_without):
    panel = launch_without("/usr/bin/bash")
    # From the search for the agent when the tab appears.
    settings.wait_for_message(panel, DENIED)
    assert settings.status(panel) == settings.NOT_RUNNING
    # A later success replaces the message, and a start that fails replaces that.
    settings.fill(panel, settings.KEY, "k")
    settings.press(panel, settings.SAVE)
    settings.wait_for_message(panel, settings.SAVED)
    settings.press(panel, START)
    settings.wait_for_message(panel, DENIED)
    assert not processes.named()


def test_no_program_to_stop_with(launch_without):
    # The program that ends processes is a link to the one that finds them.
    panel = launch_without("/usr/bin/pgrep")
    assert settings.message(panel) == ""
    settings.press(panel, STOP)
    settings.wait_for_message(panel, DENIED)


def test_apostrophe_in_the_applications_path(launch_alone, tmp_path):
    settings.LOGS.mkdir(parents=True)
    programs = tmp_path / "Ann's.app/Contents/MacOS"
    programs.mkdir(parents=True)
    shutil.copy(EXECUTABLE, programs)
    panel = launch_alone("/bin/sh", "-c", f'exec "{programs}/quillmark-agent"')
    panel.show("Settings")
    settings.press(panel, START)
    settings.wait_for_message(panel, "❌ Error: The application's path contains an apostrophe")
    assert not processes.named()


def test_limit_on_file_sizes(launch_alone):
    settings.write_config("[agent]\n")
    panel = launch_alone("/usr/bin/prlimit", "--fsize=100")
    panel.show("Settings")
    settings.fill(panel, settings.KEY, "k")
    settings.press(panel, settings.SAVE)
    settings.wait_for_message(panel, "❌ Error: File too large")
    assert settings.CONFIG.read_text() == "[agent]\n"
