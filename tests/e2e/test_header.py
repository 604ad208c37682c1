# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The header: the two badges with their dots, and the time of the last scan."""

import pytest

from harness import bodies, colours
from harness.exchange import silence
from harness.screen import Picture
from harness.window import Box

pytestmark = pytest.mark.usefixtures("token")

BIGGEST = 2**63 - 1

EXAMPLES = [
    # status, shown, healthy, threats, healthy
    ("ok", "OK", True, 0, True),
    ("stra\u00dfe \ufb01 i\u0131", "STRASSE FI II", False, BIGGEST, False),
]


def dot(panel, value):
    """The colour of the dot, 8 by 8 pixels, which is 6 pixels left of the value."""
    text = panel.tree.wait_for("text", value).box
    picture = Picture()
    area = Box(text.x - 15, text.y, 10, text.height)
    filled = {
        name: picture.count(colour, area)
        for name, colour in (("green", colours.GREEN), ("red", colours.RED))
    }
    assert sorted(filled.values())[0] == 0
    # A circle 8 across covers about 50 pixels, its edge ones only in part.
    assert 28 <= sum(filled.values()) <= 64
    return max(filled, key=filled.get)


@pytest.mark.parametrize("status, shown, healthy, threats, calm", EXAMPLES)
def test_badges(launch, status, shown, healthy, threats, calm):
    panel = launch({"status": bodies.status(status=status, threat_count=threats)})
    assert dot(panel, shown) == ("green" if healthy else "red")
    assert dot(panel, str(threats)) == ("green" if calm else "red")


def test_before_any_status(launch):
    panel = launch({"status": silence()})
    assert dot(panel, "OFFLINE") == "red"
    assert dot(panel, "0") == "green"
    tree = panel.tree.read()
    assert not tree.find("text", "Last Scan")
    # Badge title above its value, the two badges 20 apart.
    badges = [[tree.find("text", name).box for name in pair]
              for pair in (("Status", "OFFLINE"), ("Threats", "0"))]
    for title, value in badges:
        assert title.bottom <= value.y and title.x == value.x - 14
    (_, offline), (threats, _) = badges
    assert threats.x - offline.right == 20


def scan_shown(panel):
    label = panel.tree.wait_for("text", "Last Scan").box
    texts = panel.tree.read().every("text")
    (below,) = [t for t in texts if t.box.y >= label.bottom and t.box.y < label.bottom + 20
                and t.box.right > label.x - 100]
    assert abs(below.box.right - label.right) <= 1, "the block is not right-aligned"
    return below.name


@pytest.mark.parametrize("scan, zone, locale, expected", [
    ("2024-01-15T10:30:00Z", "UTC", "en_US.UTF-8", "1/15/24, 10:30 AM"),
    ("2024-01-15T23:30:00+02:00", "Asia/Kolkata", "de_DE.UTF-8", "16.01.24, 03:00"),
    ("2024-07-01T00:00:00Z", "America/New_York", "en_GB.UTF-8", "30/06/2024, 20:00"),
])
def test_last_scan_in_the_users_locale_and_zone(launch, scan, zone, locale, expected):
    panel = launch({"status": bodies.status(last_scan=scan)}, TZ=zone, LC_ALL=locale)
    assert scan_shown(panel) == expected
