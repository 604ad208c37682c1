# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a screen reader says of the window and its header."""

import pytest

pytestmark = pytest.mark.usefixtures("spoken_panel")


def test_the_window_is_spoken(screen_reader):
    screen_reader.hear("Quillmark Agent frame.")


def test_the_badges_are_spoken_with_their_values(screen_reader):
    screen_reader.press("Tab")
    screen_reader.hear("Status: OK panel.", "Healthy.")
    screen_reader.press("Tab")
    screen_reader.hear("Threats: 1 panel.", "Needs attention.")
