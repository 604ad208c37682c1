# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Windows are opened and closed; the process runs until it is quit."""

import subprocess

import pytest

from harness import activation, bodies, colours, hands
from harness.backend import pollers
from harness.panel import quit_by_command
from harness.screen import Picture
from harness.waiting import never, until
from harness.window import Box, tool

pytestmark = pytest.mark.usefixtures("token")


@pytest.fixture
def other_window(display):
    """A window of another program, on top of the panel."""
    other = subprocess.Popen(["xmessage", "-center", "-name", "cover", "x" * 40])
    until(lambda: tool("xdotool", "search", "--onlyvisible", "--classname", "cover"), "a cover")
    yield
    other.terminate()
    other.wait()


def test_second_launch_raises_the_open_window(launch, other_window):
    panel = launch()
    window = panel.window
    panel.show("Alerts")
    (cover,) = tool("xdotool", "search", "--onlyvisible", "--classname", "cover").split()
    tool("xdotool", "windowactivate", "--sync", cover)
    assert not window.topmost()
    panel.launch_again()
    until(window.topmost, "the panel's window on top")
    assert panel.windows() == [window]
    # It is the same window, still where the user was.
    panel.selected("Alerts")


def test_second_launch_brings_a_minimised_window_back(launch):
    panel = launch()
    window = panel.window
    window.minimise()
    panel.launch_again()
    until(lambda: window.mapped() and window.active(), "the window to be back")
    assert panel.windows() == [window]


def test_closed_window_and_a_new_one(launch, backend):
    panel = launch()
    panel.show("Alerts")
    panel.close()
    # Polling continues without a window.
    backend.wait_for_poll()
    assert not panel.ended()

    panel.launch_again()
    panel.selected("Dashboard")
    panel.tree.wait_for("text", "OK")
    panel.resize(1000, 1000)
    hands.park()
    window = panel.window.box
    ground = Picture().colours(Box(window.x + 4, window.bottom - 40, window.width - 8, 30))
    assert len(ground) == 1 and colours.LAUNCH_GROUND not in ground
    assert panel.window.property("_NET_FRAME_EXTENTS") == "0, 0, 0, 0"

    # The first window's polling was never stopped, so there are two now.
    seen = len(backend.seen("status"))
    starts = lambda: [r.time for r in backend.seen("status")[seen:]]  # noqa: E731
    until(lambda: len(starts()) >= 5, "five more polls")
    assert pollers(starts()[:5]) == 2


def test_close_button_closes_only_the_window(launch):
    panel = launch()
    hands.click(panel.tree.find("button", "Close").box)
    until(lambda: not panel.windows(), "the window to close")
    never(panel.ended, "the panel ended with its window", seconds=1)


def test_window_manager_closes_only_the_window(launch):
    panel = launch()
    hands.key("alt+F4")
    until(lambda: not panel.windows(), "the window to close")
    never(panel.ended, "the panel ended with its window", seconds=1)


def test_quit_ends_the_process(launch):
    panel = launch()
    hands.key("ctrl+q")
    until(panel.ended, "the panel to end")
    assert panel.process.returncode == 0


def test_quit_by_command_ends_the_open_panel(launch):
    panel = launch()
    panel.close()
    asked = quit_by_command()
    assert (asked.returncode, asked.stdout, asked.stderr) == (0, "", "")
    until(panel.ended, "the panel to end")
    assert panel.process.returncode == 0


def test_quit_by_command_without_a_panel(display):
    asked = quit_by_command()
    assert (asked.returncode, asked.stdout) == (1, "")
    assert asked.stderr == "quillmark-agent: no panel answers\n"


def test_activation_over_the_session_bus(launch):
    panel = launch()
    assert activation.owner() == panel.pid
    panel.close()
    activation.activate({})
    until(panel.windows, "a new window")


def test_actions_over_the_session_bus(launch):
    panel = launch()
    panel.close()
    activation.act("nothing-it-knows")
    until(panel.windows, "a new window, as from any other request")
    activation.act("quit")
    until(panel.ended, "the panel to end")
    assert panel.process.returncode == 0


@pytest.mark.parametrize("address", [None, "unix:path=/nowhere/bus"])
def test_without_a_session_bus(launch, address):
    panel = launch({"status": bodies.status()}, DBUS_SESSION_BUS_ADDRESS=address,
                   QT_LINUX_ACCESSIBILITY_ALWAYS_ON=None)
    until(lambda: colours.BLUE in Picture().colours(panel.window.box), "a drawn window")
