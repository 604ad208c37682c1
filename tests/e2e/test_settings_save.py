# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The file that Save & Connect writes, and its message."""

import os
import re
import stat

import pytest

from harness import colours, settings
from harness.screen import Picture
from harness.settings import CONFIG, HOME, KEY, SAVE, SERVER
from harness.waiting import until
from harness.window import Box

HOST = os.uname().nodename

TEXT = """[agent]
agent_id = "macos-{host}-{identity}"
machine_identifier = "{host}"
server_url = "{server}"
api_key = "{key}"
dev_mode = false

[telemetry]
enabled = true
batch_size = 100
batch_interval_seconds = 30
collect_processes = true
collect_network = true
collect_services = true
collect_logs = true

[detection]
enabled = true
signature_enabled = true
heuristic_enabled = true
rule_enabled = true
anomaly_enabled = true

[protection]
enabled = true
auto_quarantine = true
auto_terminate = false
auto_block_network = false
quarantine_path = "{home}/.quillmark/quarantine"

[av]
enabled = true
signature_path = "{home}/.quillmark/signatures"
update_interval_seconds = 3600
heuristic_enabled = true

[logging]
level = "info"
file_path = "{home}/.quillmark/logs/agent.log"
audit_path = "{home}/.quillmark/logs/audit.log\""""


def save(panel, key, server=None):
    if server is not None:
        settings.fill(panel, SERVER, server)
    settings.fill(panel, KEY, key)
    settings.press(panel, SAVE)


def saved(panel, key, server=None):
    save(panel, key, server)
    settings.wait_for_message(panel, settings.SAVED)
    return CONFIG.read_bytes().decode()


def identity(text):
    return re.search(r'^agent_id = "macos-.*-([0-9A-F]{8})"$', text, re.MULTILINE)[1]


def mode(path):
    return stat.S_IMODE(path.stat().st_mode)


@pytest.mark.parametrize("key, server", [
    ("Key-0123456789", settings.DEFAULT_URL),
    # Nothing is trimmed, escaped or checked.
    (' a"b\\c ', "no url at all"),
])
def test_file_is_written_exactly(tab, key, server):
    text = saved(tab, key, server)
    assert text == TEXT.format(host=HOST, home=HOME, identity=identity(text), server=server,
                               key=key)


def test_only_the_user_may_read_it(tab):
    saved(tab, "k")
    assert mode(CONFIG) == 0o600 and mode(CONFIG.parent) == 0o700
    assert [path.name for path in CONFIG.parent.iterdir()] == ["config.toml"]


@pytest.mark.parametrize("before, after", [(0o644, 0o600), (0o400, 0o400)])
def test_mode_is_tightened_but_never_loosened(tab, before, after):
    settings.write_config("old = 1\n")
    CONFIG.chmod(before)
    text = saved(tab, "k")
    assert "old" not in text
    assert mode(CONFIG) == after


def test_each_save_has_its_own_identity(tab):
    first = saved(tab, "k")
    (inode,) = {CONFIG.stat().st_ino}
    settings.press(tab, SAVE)
    until(lambda: CONFIG.stat().st_ino != inode, "another file")
    second = CONFIG.read_text()
    assert identity(first) != identity(second)
    assert first.replace(identity(first), identity(second)) == second


def test_success_is_green(tab):
    saved(tab, "k")
    assert_row(tab, settings.SAVED, colours.GREEN, colours.SUCCESS_TINT)


def test_failure_is_red_and_the_next_success_replaces_it(tab):
    CONFIG.parent.parent.mkdir()
    CONFIG.parent.write_text("in the way")
    save(tab, "k")
    failure = until(lambda: settings.message(tab), "a message")
    assert failure == "❌ Error: Not a directory"
    assert_row(tab, failure, colours.RED, colours.ERROR_TINT)
    assert CONFIG.parent.read_text() == "in the way"

    CONFIG.parent.unlink()
    settings.press(tab, SAVE)
    settings.wait_for_message(tab, settings.SAVED)
    assert_row(tab, settings.SAVED, colours.GREEN, colours.SUCCESS_TINT)


def test_folder_in_place_of_the_file(tab):
    CONFIG.mkdir(parents=True)
    save(tab, "k")
    failure = until(lambda: settings.message(tab), "a message")
    assert failure == "❌ Error: Not a regular file"
    assert list(CONFIG.parent.iterdir()) == [CONFIG]


def assert_row(panel, text, ink, ground):
    """The message with its icon, on its tint, in view."""
    settings.bring_into_view(panel, "text", text)
    box = panel.tree.find("text", text).box
    # Its first character is an emoji in colours of its own.
    words = Box(box.x + 20, box.y, box.width - 20, box.height)
    icon = Box(box.x - 8 - 11, box.centre[1] - 6, 11, 12)
    picture = Picture()
    assert picture.pixel(box.right - 2, box.y - 6) == ground
    assert picture.ink(words, ink, ground) > 0.65
    assert picture.ink(icon, ink, ground) > 0.65
    assert picture.pixel(box.x - 8 - 11 - 6, box.centre[1]) == ground
