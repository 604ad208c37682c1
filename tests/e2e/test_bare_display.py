# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A display without a window manager, as on a machine without a desktop."""

import pytest

from harness import hands
from harness.display import Display
from harness.panel import Panel
from harness.waiting import until


@pytest.fixture(scope="module")
def display():
    display = Display(manager=False)
    yield display
    display.stop()


def test_usable_without_warnings(display, token, backend):
    panel = Panel()
    until(panel.windows, "the panel's window")
    panel.tree.wait_for("text", "OK")
    window = panel.window.box
    assert window[2:] == (1000, 700)
    # Without a window manager the window cannot be moved or resized; trying must be harmless.
    hands.drag((window.x + 500, window.y + 60), (40, 40))
    hands.drag((window.right - 2, window.bottom - 2), (-60, -60))
    hands.click(panel.tree.find("tab", "Network").box)
    panel.selected("Network")
    panel.show("Alerts")
    panel.tree.wait_for("list", "Security alerts")
    assert panel.window.box[2:] == (1000, 700)
    panel.finish()
