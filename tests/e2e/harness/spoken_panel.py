# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The panel of a user who listens to it."""

from .panel import Panel


class SpokenPanel(Panel):
    def __init__(self, screen_reader):
        super().__init__()
        self._screen_reader = screen_reader

    def focus_item(self, item):
        # At each key that the reader handles, it takes the focus of that moment without a
        # word; so no key may wait when the focus changes, nor a focus when a key follows.
        self._screen_reader.settle()
        focus = super().focus_item(item)
        self._screen_reader.settle()
        return focus
