# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The Alerts tab."""

import pytest

from harness import bodies, colours, hands
from harness.lists import listed, read_through
from harness.screen import Picture
from harness.waiting import until
from harness.window import Box

pytestmark = pytest.mark.usefixtures("token")

SEVERITIES = [
    ("critical", colours.RED), ("CRITICAL", colours.RED), ("High", colours.ORANGE),
    ("HIGH", colours.ORANGE), ("medium", colours.YELLOW), ("low", colours.BLUE),
    ("", colours.BLUE), (" critical", colours.BLUE), ("severe", colours.BLUE),
]


def show(launch, *alerts):
    panel = launch({"alerts": bodies.alerts(*alerts)})
    panel.resize(1000, 1100)
    panel.show("Alerts")
    hands.park()
    return panel


def icon_of(row):
    """The area between the window's border and the row's texts."""
    text = row.every("text")[0].box
    return Box(row.box.x + 2, row.box.y + 2, text.x - row.box.x - 3, row.box.height - 4)


def test_icon_by_severity(launch):
    panel = show(launch, *[bodies.alert("type", severity) for severity, _ in SEVERITIES])
    panel.tree.wait_for("list", "Security alerts")
    rows = listed(panel, "Security alerts")[1]
    picture = Picture()
    shapes = []
    for row, (severity, colour) in zip(rows, SEVERITIES, strict=True):
        assert row.name == (f"{severity}: type" if severity else "type")
        assert picture.ink(icon_of(row), colour) > 0.6
        shapes.append(list(picture.pixels(icon_of(row))))
    assert shapes[0] == shapes[1] and shapes[2] == shapes[3]
    assert shapes[5] == shapes[6] == shapes[7] == shapes[8]
    # Filled for high, drawn in outline for medium.
    assert inked(picture, icon_of(rows[2])) > 1.2 * inked(picture, icon_of(rows[4]))


def inked(picture, box):
    ground = picture.pixel(box.x, box.y)
    return sum(pixel != ground for pixel in picture.pixels(box))


def test_texts_of_a_row(launch):
    unseen = {"title": "Unseen title", "file_path": "/unseen", "timestamp": "unseen o'clock"}
    panel = show(
        launch,
        bodies.alert("Malware found", "high", description="the description", **unseen),
        bodies.alert("Alone", "low", description=None, **unseen),
        bodies.alert("Empty", "low", description=""),
    )
    panel.tree.wait_for("list", "Security alerts")
    rows = listed(panel, "Security alerts")[1]
    assert rows[0].name == "high: Malware found, the description"
    assert rows[1].name == "low: Alone"
    assert [t.name for t in rows[0].every("text")] == ["Malware found", "the description"]
    assert [t.name for t in rows[1].every("text")] == ["Alone"]
    assert "nseen" not in panel.tree.read().dump()
    # An empty description still has its line.
    assert rows[0].box.height == rows[2].box.height > rows[1].box.height

    picture = Picture()
    kind, description = (text.box for text in rows[0].every("text"))
    assert kind.x == description.x and kind.bottom <= description.y
    assert description.height < kind.height
    assert picture.ink(kind, colours.BLACK) > 0.65
    assert picture.ink(description, colours.GRAY) > 0.65
    assert abs(icon_of(rows[0]).centre[1] - rows[0].box.centre[1]) <= 2


def test_first_hundred_in_the_order_received(launch):
    alerts = [bodies.alert(f"Alert {(i * 37) % 150}") for i in range(150)]
    panel = show(launch, *alerts)
    panel.tree.wait_for("list", "Security alerts")
    expected = [f"high: {a['alert_type']}" for a in alerts[:100]]
    assert read_through(panel, "Security alerts") == expected


def test_no_alerts_and_then_one(launch, backend):
    panel = show(launch)
    text = panel.tree.wait_for("text", "No threats detected").box
    tree = panel.tree.read()
    assert not tree.every("list")
    window = tree.every("window")[0].box
    picture = Picture()
    assert picture.ink(text, colours.GRAY, colours.TINT) > 0.65
    icon = Box(text.centre[0] - 30, text.y - 20 - 50, 60, 64)
    assert picture.ink(icon, colours.GREEN, colours.TINT) > 0.65
    assert picture.colours(Box(window.x + 4, window.bottom - 40, 300, 30)) == {colours.TINT}
    assert abs(text.centre[0] - window.centre[0]) <= 2

    backend.reply(alerts=bodies.alerts(bodies.alert("Only one", "low")))
    panel.tree.wait_for("row", "low: Only one")
    until(lambda: not panel.tree.find("text", "No threats detected"), "the list alone")
