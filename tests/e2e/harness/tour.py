# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What most users do with the panel, one thing after another."""

from . import picker, settings
from .panel import TABS


def tour(panel):
    """Every tab, a configuration saved, and the file dialog opened and cancelled."""
    for tab in TABS:
        panel.show(tab)
    settings.fill(panel, settings.KEY, "key")
    settings.press(panel, settings.SAVE)
    settings.wait_for_message(panel, settings.SAVED)
    with picker.opened(panel):
        pass
