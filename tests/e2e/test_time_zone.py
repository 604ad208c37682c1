# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The machine's time zone changes while the panel runs, as when the user travels."""

import os
from pathlib import Path

import pytest

from harness import bodies

pytestmark = pytest.mark.usefixtures("token")

LOCAL_TIME = Path("/etc/localtime")
ZONES = Path("/usr/share/zoneinfo")


def set_zone(file):
    """As the system's own tool does it: replaces the link atomically."""
    link = LOCAL_TIME.with_name("localtime.new")
    link.symlink_to(file)
    link.replace(LOCAL_TIME)


@pytest.fixture(autouse=True)
def new_york():
    before = os.readlink(LOCAL_TIME)
    set_zone(ZONES / "America/New_York")
    yield
    set_zone(before)


@pytest.fixture
def opened(launch):
    """A panel with the zone that TZ chooses, or the machine's without it."""

    def start(zone):
        return launch({"status": bodies.status(last_scan="2024-01-15T10:30:00Z")}, TZ=zone)

    return start


def polls_and_shows(panel, backend, date):
    for _ in range(2):
        backend.wait_for_poll()
        panel.tree.wait_for("text", date)


def test_dates_follow_with_the_next_poll(opened, backend):
    panel = opened(None)
    panel.tree.wait_for("text", "1/15/24, 5:30 AM")
    set_zone(ZONES / "Asia/Kolkata")
    polls_and_shows(panel, backend, "1/15/24, 4:00 PM")
    set_zone(ZONES / "Pacific/Kiritimati")
    polls_and_shows(panel, backend, "1/16/24, 12:30 AM")


@pytest.mark.parametrize("content", [None, b"TZif2" + b"\xff" * 100], ids=["missing", "broken"])
def test_a_zone_that_cannot_be_read_means_utc(opened, backend, tmp_path, content):
    panel = opened(None)
    panel.tree.wait_for("text", "1/15/24, 5:30 AM")
    file = tmp_path / "zone"
    if content is not None:
        file.write_bytes(content)
    set_zone(file)
    polls_and_shows(panel, backend, "1/15/24, 10:30 AM")


def test_the_zone_in_tz_stays(opened, backend):
    panel = opened("Europe/Berlin")
    panel.tree.wait_for("text", "1/15/24, 11:30 AM")
    set_zone(ZONES / "Asia/Kolkata")
    polls_and_shows(panel, backend, "1/15/24, 11:30 AM")
