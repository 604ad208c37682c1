# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Every text and icon has enough contrast with its background, in the screen's pixels."""

import pytest

from harness import bodies, hands, large, settings, xdotool
from harness.contrast import inked
from harness.large import drawn
from harness.panel import TABS
from harness.waiting import until
from harness.window import Box

TEXT = 4.5
ICON = 3.0
SCREEN = large.SCREEN
GLYPHS = ("Minimize", "Maximize", "Close")

pytestmark = pytest.mark.usefixtures("clean_home", "token")

SEVERITIES = ("critical", "high", "medium", "low")
# The texts that have an icon or a dot at their left.
BESIDE = {
    "Dashboard": (),
    "Network": (),
    "Inventory": (),
    "Alerts": SEVERITIES,
    "Settings": ("Agent Status", "Start Agent", "Stop Agent", "Quick Setup", "Save & Connect",
                 "Advanced Configuration", "Browse and Import Config", "Config File Locations",
                 "~/.config/quillmark/config.toml", "/etc/quillmark/config.toml"),
}


def left_of(box):
    return Box(box.x - 34, box.y - 2, 32, box.height + 4)


def above(box):
    return Box(box.centre[0] - 24, box.y - 68, 48, 48)


def check(panel, beside=(), topped=None):
    """Checks what is visible now. `beside` are texts with an icon at their left, `topped`
    is one with an icon above."""
    hands.park()
    tree = panel.tree.read()
    texts = [i for i in tree.every("text") if i.name]
    by_name = {text.name: text.box for text in texts}
    icons = {name: left_of(by_name[name]) for name in (*TABS, *beside)}
    icons |= {name: tree.find("button", name).box for name in GLYPHS}
    if topped:
        icons[topped] = above(by_name[topped])

    def too_weak():
        picture = large.picture()
        found = [(text.name, inked(picture.pixels(drawn(text.box))), TEXT) for text in texts]
        found += [(f"icon of {name}", inked(picture.pixels(drawn(box))), ICON)
                  for name, box in icons.items()]
        return [(what, ratio) for what, ratio, least in found if ratio < least]

    seen = []

    def readable():
        seen.append(too_weak())
        return not seen[-1]

    # The first picture may be older than the last change.
    try:
        until(readable, "enough contrast everywhere")
    except AssertionError:
        pytest.fail(f"too weak: {seen[-1]}")
    return len(texts), len(icons)


def test_live(launch_large, backend):
    backend.reply(status=bodies.status(threat_count=77), alerts=bodies.alerts(
        *[bodies.alert(s, s, description=f"what {s} means") for s in SEVERITIES]))
    panel = launch_large()
    panel.tree.wait_for("text", "OK")
    for tab in TABS:
        panel.show(tab)
        texts, icons = check(panel, ("Quillmark Agent", "OK", "77", *BESIDE[tab]))
        assert texts > 15 and icons >= 11


def test_empty_inventory(launch_large, backend):
    backend.reply(inventory=bodies.inventory())
    panel = launch_large()
    panel.show("Inventory")
    panel.tree.wait_for("text", "Loading applications...")
    check(panel)
    backend.reply(**bodies.everyday())


def test_offline(launch_large, backend):
    backend.stop()
    try:
        panel = launch_large()
        panel.tree.wait_for("text", "OFFLINE")
        for tab, empty in (("Dashboard", None), ("Network", "No network connections detected"),
                           ("Inventory", None), ("Alerts", "No threats detected")):
            panel.show(tab)
            check(panel, ("OFFLINE", "0") if tab != "Dashboard" else ("OFFLINE",), empty)
    finally:
        backend.start()


def test_messages(launch_large):
    settings.write_config("not a section\n")
    panel = launch_large()
    panel.show("Settings")
    settings.fill(panel, settings.KEY, "k")
    settings.press(panel, settings.SAVE)
    settings.wait_for_message(panel, settings.SAVED)
    check(panel, (*BESIDE["Settings"], settings.SAVED))
    # A folder in place of the file.
    settings.clean_home()
    (settings.CONFIG / "in the way").mkdir(parents=True)
    settings.press(panel, settings.SAVE)
    failed = until(lambda: settings.message(panel).startswith("❌") and settings.message(panel),
                   "the save to fail")
    check(panel, (*BESIDE["Settings"], failed))


@pytest.mark.parametrize("name", GLYPHS)
def test_glyph_under_the_pointer(launch_large, name):
    panel = launch_large()
    box = drawn(panel.tree.find("button", name).box)
    xdotool.do("mousemove", *map(str, box.centre))
    hover = (0xE9, 0xEB, 0xEF)
    until(lambda: hover in large.picture().colours(box), "the glyph to be highlighted")
    assert inked(large.picture().pixels(box)) >= ICON
