# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Starting, stopping and looking for the real agent of the bundle."""

import signal
import subprocess

import pytest

from harness import activation, colours, hands, processes, settings
from harness.screen import Picture
from harness.settings import LOGS, NOT_RUNNING, RUNNING, START, STOP, status
from harness.waiting import never, until
from harness.window import Box
from patience import PATIENCE

pytestmark = pytest.mark.usefixtures("fresh_home")


@pytest.fixture
def panel(agent_panel):
    return agent_panel


def start(panel):
    settings.press(panel, START)


def running(panel, count=1):
    until(lambda: status(panel) == RUNNING, RUNNING)
    assert len(processes.agents()) == count


def test_start_says_running(panel):
    start(panel)
    running(panel)
    (agent,) = processes.agents()
    # Detached: not a child process of the panel.
    assert agent.pid not in [p.pid for p in processes.below(panel.pid)]
    assert "listening on 127.0.0.1:7823" in (LOGS / "backend.log").read_text()
    assert settings.message(panel) == ""


def test_second_start_still_says_running(panel):
    start(panel)
    running(panel)
    (first,) = processes.agents()
    start(panel)
    # It finds the port in use, logs this and ends.
    until(lambda: "already in use" in (LOGS / "backend.log").read_text(), "the second agent")
    never(lambda: status(panel) != RUNNING, "the status changed", seconds=2.5)
    assert [a.pid for a in processes.agents()] == [first.pid]


def test_activation_tokens_do_not_reach_the_agent(panel):
    activation.activate_with("sent-with-the-activation")
    # Longer than the system allows for a variable of a program that starts.
    activation.activate_with("x" * 200_000)
    start(panel)
    running(panel)
    (agent,) = processes.agents()
    assert "XDG_ACTIVATION_TOKEN" not in agent.environment


def test_without_the_log_folder_nothing_starts(panel):
    LOGS.rmdir()
    panel.expected_output = r".*backend\.log: No such file or directory\n"
    start(panel)
    until(lambda: "No such file" in panel.output(), "the shell's error message")
    never(lambda: processes.agents() or status(panel) != NOT_RUNNING, "something started",
          seconds=2.5)
    assert not LOGS.exists()
    assert settings.message(panel) == ""


def test_stop_says_not_running(panel):
    start(panel)
    running(panel)
    settings.press(panel, STOP)
    until(lambda: not processes.named(), "the agent to end")
    until(lambda: status(panel) == NOT_RUNNING, NOT_RUNNING)
    assert settings.message(panel) == ""


def test_every_process_with_the_name_counts_and_is_stopped(panel):
    other = subprocess.Popen([f"./{processes.AGENT}", "600"], executable="/usr/bin/sleep")
    settings.enter(panel)
    assert status(panel) == RUNNING
    start(panel)
    until(lambda: len(processes.agents()) == 2, "two agents")
    settings.press(panel, STOP)
    assert other.wait(timeout=PATIENCE) == -signal.SIGTERM
    until(lambda: not processes.named(), "both to end")
    until(lambda: status(panel) == NOT_RUNNING, NOT_RUNNING)


def test_stop_with_nothing_running(panel):
    settings.press(panel, STOP)
    never(lambda: status(panel) != NOT_RUNNING, "the status changed", seconds=1.5)
    assert settings.message(panel) == ""
    # It can still be started after that.
    start(panel)
    running(panel)


@pytest.mark.parametrize("number", [signal.SIGTERM, signal.SIGKILL])
def test_agent_ended_outside_shows_when_the_tab_is_entered_again(panel, number):
    start(panel)
    running(panel)
    processes.end_agents(number)
    never(lambda: status(panel) != RUNNING, "the tab searched again", seconds=1.5)
    settings.enter(panel)
    assert status(panel) == NOT_RUNNING


def test_agent_started_outside_shows_when_the_tab_is_entered_again(panel):
    start(panel)
    panel.show("Dashboard")
    until(processes.agents, "the agent")
    panel.show("Settings")
    running(panel)


@pytest.mark.parametrize("action, agents", [(START, 1), (STOP, 0)])
def test_tab_left_before_the_search(panel, action, agents):
    settings.press(panel, action)
    panel.show("Alerts")
    # The search is due meanwhile, for a tab that no longer exists.
    never(panel.ended, "the panel ended", seconds=2.5)
    assert len(processes.agents()) == agents
    panel.show("Settings")
    assert status(panel) == (RUNNING if agents else NOT_RUNNING)


def test_window_closed_before_the_search(panel):
    settings.press(panel, START)
    panel.close()
    never(panel.ended, "the panel ended", seconds=2.5)
    assert len(processes.agents()) == 1


def test_agent_outlives_the_panel(launch_alone):
    LOGS.mkdir(parents=True)
    panel = launch_alone()
    panel.show("Settings")
    start(panel)
    running(panel)
    panel.finish()
    assert len(processes.agents()) == 1


def test_circle_and_text_have_the_colour_of_the_status(panel):
    def assert_colour(text, colour):
        hands.park()
        box = panel.tree.wait_for("text", text).box
        circle = Box(box.x - 8 - 10, box.centre[1] - 5, 10, 10)
        picture = Picture()
        assert picture.pixel(*circle.centre) == colour
        assert picture.ink(box, colour, colours.WHITE) > 0.65
        assert picture.pixel(circle.x - 3, circle.centre[1]) == colours.WHITE

    assert_colour(NOT_RUNNING, colours.RED)
    start(panel)
    running(panel)
    assert_colour(RUNNING, colours.GREEN)


def test_started_and_stopped_by_assistive_technology(panel):
    panel.tree.act(panel.tree.find(*START), "Press")
    running(panel)
    panel.tree.act(panel.tree.find(*STOP), "Press")
    panel.tree.wait_for("text", NOT_RUNNING)
    assert not processes.named()
