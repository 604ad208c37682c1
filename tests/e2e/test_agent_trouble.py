# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Agents that do not start, do not stop, or are too many."""

import socket
import subprocess
import time

import pytest

from harness import hands, processes, settings
from harness.settings import LOGS, NOT_RUNNING, RUNNING, START, STOP, status
from harness.waiting import never, until

pytestmark = pytest.mark.usefixtures("fresh_home")

IGNORES = "trap '' TERM; while :; do sleep 1; done"


@pytest.fixture
def panel(agent_panel):
    return agent_panel


def probe():
    """What a search for an agent finds now."""
    done = subprocess.run(["pgrep", "-f", processes.AGENT], capture_output=True)
    return RUNNING if done.returncode == 0 else NOT_RUNNING


def impostor(*arguments, executable="/usr/bin/sleep"):
    return subprocess.Popen([f"./{processes.AGENT}", *arguments], executable=executable)


def end(*children):
    for child in children:
        child.kill()
        child.wait()


def test_agent_that_ignores_the_request_to_end(panel):
    stubborn = impostor("-c", IGNORES, executable="/bin/bash")
    try:
        settings.enter(panel)
        assert status(panel) == RUNNING
        settings.press(panel, STOP)
        never(lambda: status(panel) != RUNNING, "the tab says that it has ended", seconds=2)
        assert stubborn.poll() is None
    finally:
        end(stubborn)


def test_fifty_processes_with_the_agents_name(panel):
    crowd = [impostor("600") for _ in range(50)]
    try:
        settings.enter(panel)
        assert status(panel) == RUNNING
        settings.press(panel, STOP)
        until(lambda: all(p.poll() is not None for p in crowd), "all fifty to end")
        until(lambda: status(panel) == NOT_RUNNING, NOT_RUNNING)
    finally:
        end(*crowd)


def test_zombie_with_the_agents_name(panel):
    zombie = impostor("600")
    zombie.kill()
    until(lambda: [p for p in processes.every() if p.pid == zombie.pid and p.state == "Z"],
          "a zombie")
    settings.enter(panel)
    assert status(panel) == probe()
    settings.press(panel, STOP)
    never(panel.ended, "the panel ended", seconds=1.5)
    assert status(panel) == probe()
    zombie.wait()


def test_agent_that_ends_at_once(panel):
    with socket.create_server(("127.0.0.1", 7823)):
        settings.press(panel, START)
        until(lambda: "already in use" in (LOGS / "backend.log").read_text()
              if (LOGS / "backend.log").exists() else False, "the agent's error message")
        until(lambda: not processes.named(), "the agent to end")
        never(lambda: status(panel) != NOT_RUNNING, "the tab says that it runs", seconds=2.5)


def test_log_that_cannot_be_written(panel):
    (LOGS / "backend.log").mkdir()
    panel.expected_output = r".*backend\.log: Is a directory\n"
    settings.press(panel, START)
    until(lambda: "Is a directory" in panel.output(), "the shell's error message")
    never(lambda: processes.agents() or status(panel) != NOT_RUNNING, "something started",
          seconds=2.5)


def test_a_hundred_clicks_on_start_and_stop_in_turn(panel):
    buttons = [settings.bring_into_view(panel, *button).box for button in (START, STOP)]
    hands.click_in_turn(buttons, times=50)
    # The last search runs two seconds after the last click is handled.
    clicked = time.monotonic()
    until(lambda: time.monotonic() > clicked + 4 and status(panel) == probe(),
          "the tab to show what is found")
    never(lambda: status(panel) != probe(), "the tab changed again", seconds=2)
