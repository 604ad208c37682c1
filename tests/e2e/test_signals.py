# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Ended by a signal, as when the session closes, or by Ctrl+C in a terminal."""

import signal

import pytest
from gi.repository import Gio, GLib

from harness.panel import Panel
from harness.waiting import until

pytestmark = pytest.mark.usefixtures("token", "backend")

DAEMON = "org.freedesktop.DBus"


def is_taken():
    bus = Gio.bus_get_sync(Gio.BusType.SESSION)
    return bus.call_sync(DAEMON, "/", DAEMON, "NameHasOwner",
                         GLib.Variant("(s)", ("org.quillmark.Agent",)), None,
                         Gio.DBusCallFlags.NONE, 5000, None).unpack()[0]


@pytest.mark.parametrize("number", [signal.SIGTERM, signal.SIGINT, signal.SIGHUP],
                         ids=lambda number: number.name)
def test_ends_at_once_and_leaves_nothing(display, number, tmp_path):
    panel = Panel("env", f"--chdir={tmp_path}").opened()
    panel.tree.wait_for("text", "OK")
    assert is_taken()
    panel.process.send_signal(number)
    until(panel.ended, "the panel to end")
    # A shell reports this as 128 plus the signal's number.
    assert panel.process.returncode == -number
    assert panel.output() == ""
    assert not list(tmp_path.iterdir()), "no core, no other file"
    until(lambda: not is_taken(), "the name to be free")
    panel.dismiss()
    # Nothing is left that would keep the next one from starting.
    Panel().opened().finish()
