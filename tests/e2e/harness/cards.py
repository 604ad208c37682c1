# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The dashboard's number cards."""

TITLES = (
    "Installed Applications",
    "Active Services",
    "Network Interfaces",
    "Active Network Connections",
    "Recent Alerts",
)


def items(panel):
    """Title and value of each card, top to bottom."""
    texts = panel.tree.read().every("text")
    at = [i for i, text in enumerate(texts) if text.name in TITLES]
    pairs = [(texts[i], texts[i + 1]) for i in at]
    return sorted(pairs, key=lambda pair: pair[0].box.y)


def cards(panel):
    return {title.name: value.name for title, value in items(panel)}
