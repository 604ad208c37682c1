# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The file dialog, used by keyboard."""

import contextlib

from . import hands, settings
from .waiting import until

TITLE = "Select config.toml file"


def shown(panel):
    """The dialog. With Qt 6.8 its title may be that of a window around it."""
    tree = panel.tree.read()
    window = tree.find("window", TITLE)
    return next(iter(window.every("dialog")), None) if window else tree.find("dialog", TITLE)


def wait_until_closed(panel):
    until(lambda: not shown(panel), "the dialog to close")


def bring_up(panel, key=None):
    if key:
        settings.focus_on(panel, settings.BROWSE)
        hands.key(key)
    else:
        settings.press(panel, settings.BROWSE)
    until(lambda: shown(panel), "the dialog")
    until(lambda: panel.focus() and panel.focus().role == "row", "the dialog to have the focus")
    return shown(panel)


@contextlib.contextmanager
def opened(panel, key=None):
    """The dialog is open inside the `with` block, and cancelled after it."""
    try:
        yield bring_up(panel, key)
    finally:
        hands.key("Escape")
    wait_until_closed(panel)


def choose(panel, path):
    """Types the path of the file."""
    bring_up(panel)
    hands.key("ctrl+l")
    until(lambda: panel.focus().role == "field", "the path to be editable")
    hands.key("ctrl+a")
    hands.write(str(path))
    until(lambda: panel.tree.text(panel.focus()) == str(path), "the path to be typed")
    hands.key("Return")
    wait_until_closed(panel)


def chosen_row(panel):
    return next(r for r in panel.tree.read().every("row") if "focused" in r.states)


def pick(panel, path):
    """Selects the file with the Down key. The dialog must open in its folder."""
    bring_up(panel)
    for _ in range(10):
        row = chosen_row(panel)
        if row.find("text", path.name):
            break
        hands.key("Down")
        until(lambda: chosen_row(panel) != row, "the next row")
    hands.key("Return")
    wait_until_closed(panel)
