# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The tab at every usual scale and size, with no text cut off."""

import pytest

from harness import hands, settings
from harness.screen import BUILD, save
from harness.waiting import until

SCREEN = (3300, 2300)
SMALL = (1000, 700)
LARGE = (1600, 1100)

pytestmark = pytest.mark.usefixtures("fresh_home", "token")


def assert_uncut(panel):
    """Each text lies in its card, and no text lies on another."""
    page = panel.tree.find("group", "Settings")
    for card in (child for child in page.children if child.role == "group"):
        texts = card.every("text")
        for text in texts:
            assert card.box.holds(text.box), (text, card.box)
        for above, below in zip(texts, texts[1:]):
            assert above.box.bottom <= below.box.y or above.box.right <= below.box.x


@pytest.mark.parametrize("scale, size", [
    ("1", SMALL), ("1", LARGE), ("1.5", SMALL), ("2", LARGE),
], ids=lambda value: value if isinstance(value, str) else f"{value[0]}x{value[1]}")
def test_pictures(launch, scale, size):
    panel = launch(QT_SCALE_FACTOR=scale)
    pixels = [round(length * float(scale)) for length in size]
    panel.window.move(0, 0)
    panel.window.resize(*pixels)
    until(lambda: list(panel.window.box[2:]) == pixels, f"a window of {pixels}")
    panel.show("Settings")
    # With green and red parts, and a long server URL.
    settings.fill(panel, settings.SERVER, "https://enrolment.emea.security.example:8443")
    settings.fill(panel, settings.KEY, "0123456789abcdef")
    settings.press(panel, settings.SAVE)
    settings.bring_into_view(panel, "text", settings.SAVED)
    panel.focus_on("tab", "Settings")
    name = f"settings-{scale}-{size[0]}x{size[1]}"
    for part, goal in (("", "Agent Status"), ("-end", "System-wide configuration")):
        settings.bring_into_view(panel, "text", goal)
        hands.park()
        assert_uncut(panel)
        if part == "" or size == SMALL:
            save(BUILD / "pictures" / f"{name}{part}.png", panel.window.box)
