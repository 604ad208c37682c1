# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a screen reader says of the header, and of its changes."""

import pytest

from harness import bodies

pytestmark = pytest.mark.usefixtures("spoken_panel")


def test_the_window_and_the_status_are_spoken_at_the_start(screen_reader):
    screen_reader.hear("Quillmark Agent frame.",
                       "notification Connected to the agent. Status: OK. Threats: 1.")


def test_a_change_of_the_status_is_spoken_once(screen_reader, backend):
    screen_reader.forget()
    backend.reply(status=bodies.status(status="warning", threat_count=1))
    screen_reader.hear("notification Status: WARNING.")
    backend.reply(status=bodies.status(status="warning", threat_count=4))
    screen_reader.hear_only("notification Threats: 4.")


def test_polls_without_a_change_say_nothing(screen_reader, backend):
    screen_reader.forget()
    backend.wait_for_poll()
    backend.wait_for_poll()
    # Everything before these words would have been said by now.
    backend.reply(status=bodies.status(threat_count=1))
    screen_reader.hear_only("notification Status: OK. Threats: 1.")


def test_the_connection_is_spoken_when_it_is_lost_and_found(screen_reader, backend):
    screen_reader.forget()
    backend.stop()
    screen_reader.hear("notification Connection to the agent lost.")
    backend.start()
    screen_reader.hear("notification Connected to the agent. Status: OK. Threats: 1.")


def test_the_badges_are_spoken_with_their_values(screen_reader):
    screen_reader.press("Tab")
    screen_reader.hear("Status: OK section.", "Healthy.")
    screen_reader.press("Tab")
    screen_reader.hear("Threats: 1 section.", "Needs attention.")


def test_a_change_is_also_spoken_once_while_the_badge_has_the_focus(screen_reader, backend):
    screen_reader.forget()
    backend.reply(status=bodies.status(threat_count=0))
    screen_reader.hear_only("notification Threats: 0.")
