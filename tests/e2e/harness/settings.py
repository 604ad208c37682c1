# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The Settings tab: its controls, and the files behind it."""

import os
import shutil
from pathlib import Path

from . import colours, hands
from .screen import Picture
from .waiting import until
from .window import Box

HOME = Path(os.environ["HOME"])
CONFIG = HOME / ".config" / "quillmark" / "config.toml"
OLD_CONFIG = HOME / ".quillmark" / "config.toml"
LOGS = HOME / ".quillmark" / "logs"

DEFAULT_URL = "https://console.quillmark.example"
SERVER = ("field", "Server URL")
# Qt gives a masked field no name, only a description.
KEY = ("password", "")
SAVE = ("button", "Save & Connect")
BROWSE = ("button", "Browse and Import Config")
START = ("button", "Start Agent")
STOP = ("button", "Stop Agent")

SAVED = "✅ Config saved! Restart the agent to connect."
IMPORTED = "✅ Config imported successfully! Close and reopen the agent to apply changes."
NO_SECTION = "❌ Invalid config: missing [agent] section"
RUNNING = "Agent is running"
NOT_RUNNING = "Agent is not running"


def status(panel):
    """The tab's text about whether the agent runs."""
    return panel.tree.find("text", RUNNING, NOT_RUNNING).name


def clean_home():
    """Removes all files, as before the first run."""
    for folder in (CONFIG.parent.parent, OLD_CONFIG.parent):
        shutil.rmtree(folder, ignore_errors=True)


def write_config(text, path=CONFIG):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(text if isinstance(text, bytes) else text.encode())


def enter(panel):
    """Leaves the tab and returns, so that it is created again."""
    panel.show("Alerts")
    panel.show("Settings")
    panel.tree.wait_for("group", "Quick Setup")


def _in_view(panel, which):
    """Its box, if it can be clicked without scrolling."""
    if panel.scale != 1:
        return None
    page = panel.tree.find("group", "Settings")
    found = page and page.find(*which)
    return found.box if found and page.box.holds(found.box) else None


def focus_on(panel, which):
    """Directly, or by Tab if it is scrolled out of view: then it is not in the tree."""
    if found := panel.tree.find(*which):
        panel.focus_item(found)
    else:
        panel.focus_on("group", "Settings")
        panel.press_until_focused(*which)


def press(panel, button):
    """By pointer if the button is in view, else by keyboard."""
    if box := _in_view(panel, button):
        hands.click(box)
    else:
        focus_on(panel, button)
        hands.key("space")


def field(panel, which):
    return panel.tree.text(panel.tree.find(*which))


def fill(panel, which, text):
    """Replaces the text of a field."""
    # Not by pointer: the second click of a double click does not move the focus.
    focus_on(panel, which)
    hands.key("ctrl+a", "BackSpace")
    if text:
        hands.write(text)
    wanted = "●" * len(text) if which == KEY else text
    until(lambda: field(panel, which) == wanted, f"{which} to hold {wanted!r}")


def message(panel):
    """The last operation's message."""
    found = [t for t in panel.tree.read().texts() if t.startswith(("✅", "❌"))]
    assert len(found) <= 1, found
    return found[0] if found else ""


def wait_for_message(panel, text):
    found = panel.tree.wait_for("text", text)
    assert message(panel) == text
    return found


def ground(panel, button):
    """The colour of a filled button, beside its icon and text."""
    hands.park()
    box = panel.tree.find(*button).box
    return Picture().pixel(box.x + 20, box.centre[1])


def assert_save_is(panel, enabled):
    """By its colour: Qt does not report the disabled state to assistive technology."""
    colour = colours.BLUE if enabled else colours.GRAY
    until(lambda: ground(panel, SAVE) == colour,
          f"Save & Connect {'enabled' if enabled else 'disabled'}")


def hint_colour(panel, which):
    """The darkest colour in an empty field without the focus."""
    panel.focus_on("tab", "Settings")
    panel.tree.wait_for(*which)
    hands.park()
    box = panel.tree.find(*which).box
    inner = Box(box.x + 4, box.y + 4, box.width - 8, box.height - 8)
    return min(Picture().colours(inner), key=sum)


def bring_into_view(panel, role, name):
    """Scrolls by keyboard until the whole item is visible."""
    page = panel.tree.find("group", "Settings")

    def inside():
        found = panel.tree.find(role, name)
        return found and page.box.holds(found.box) and found

    if not inside():
        panel.focus_on("group", "Settings")
        hands.key("Home")
        for _ in range(10):
            if inside():
                break
            before = panel.tree.read()
            hands.key("Next")
            until(lambda: panel.tree.read() != before, "the page to scroll")
    return until(inside, f"{role} {name!r} in view")
