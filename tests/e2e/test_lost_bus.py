# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The session bus is killed or never answers, or the first panel hangs, while a second is
launched."""

import os
import signal

import pytest

from harness import colours
from harness.bus import Bus, SilentBus
from harness.panel import Panel, quit_by_command
from harness.screen import Picture
from harness.waiting import never, until

pytestmark = pytest.mark.usefixtures("token", "backend")

# How many pieces of data an undisturbed launch takes: one or two messages are a piece.
FEWEST = 12
MOST = 24


@pytest.fixture
def bus(tmp_path):
    bus = Bus(tmp_path)
    yield bus
    bus.stop()


@pytest.fixture
def start(display, bus):
    """Starts panels on that bus, without the traffic of assistive technology."""
    started = []

    def start():
        panel = Panel(DBUS_SESSION_BUS_ADDRESS=bus.address, QT_LINUX_ACCESSIBILITY_ALWAYS_ON=None)
        started.append(panel)
        return panel

    yield start
    for panel in started:
        panel.dismiss()


def is_drawn(panel):
    """Whether the line below the selected tab is."""
    def has_line(box):
        picture = Picture()
        rows = (box._replace(y=y, height=1) for y in range(box.y, box.bottom))
        return any(picture.find(colours.BLUE, row, length=50) for row in rows)

    return any(has_line(window.box) for window in panel.windows())


def test_undisturbed(start, bus):
    first = start().opened()
    bus.count()
    second = start()
    until(second.ended, "the second to end")
    assert FEWEST <= bus.pieces <= MOST
    second.finish()
    first.finish()


@pytest.mark.parametrize("piece", range(0, MOST + 1, 2))
def test_the_bus_is_killed(start, bus, piece):
    first = start().opened()
    bus.count(dies_at=piece)
    second = start()
    until(lambda: second.ended() or second.windows(), "the second to end or open a window")
    # On a busy machine the bus may answer too late; then there is a window as well.
    assert piece >= FEWEST or not bus.alive() or not second.ended()
    if not second.ended():
        second.opened()
        until(lambda: is_drawn(second), "a drawn window")
    # Ends with 0 and without output.
    second.finish()
    never(first.ended, "the first ended", seconds=0.3)
    until(lambda: is_drawn(first), "the first one's window")
    first.finish()


@pytest.fixture
def silent_accessibility(bus):
    service = bus.silent_service("org.a11y.Bus")
    yield
    service.kill()
    service.communicate()


@pytest.fixture(params=["at once", "after authentication"])
def silent_bus(request, tmp_path):
    bus = SilentBus(tmp_path, authenticates=request.param == "after authentication")
    yield bus
    bus.stop()


def test_a_bus_that_never_answers(display, silent_bus):
    panel = Panel(DBUS_SESSION_BUS_ADDRESS=silent_bus.address,
                  QT_LINUX_ACCESSIBILITY_ALWAYS_ON=None).opened()
    until(lambda: is_drawn(panel), "a drawn window")
    panel.finish()
    assert len(silent_bus.connections) == 1, "asked once"


def test_accessibility_that_never_answers(display, start, silent_accessibility):
    first = start().opened()
    until(lambda: is_drawn(first), "a drawn window")
    # The panels do without the bus, so each of them has a window.
    second = start().opened()
    second.finish()
    first.finish()


def test_quit_by_command_on_a_bus_that_never_answers(silent_bus):
    asked = quit_by_command(DBUS_SESSION_BUS_ADDRESS=silent_bus.address)
    assert (asked.returncode, asked.stderr) == (1, "quillmark-agent: no panel answers\n")
    assert len(silent_bus.connections) == 1, "asked once"


def test_the_first_panel_hangs(start):
    first = start().opened()
    os.kill(first.pid, signal.SIGSTOP)
    second = start().opened()
    until(lambda: is_drawn(second), "a drawn window")
    second.finish()
    os.kill(first.pid, signal.SIGCONT)
    first.opened()
    first.finish()
