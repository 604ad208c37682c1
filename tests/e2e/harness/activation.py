# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What a desktop asks of the running panel over the session bus."""

from gi.repository import Gio, GLib

from patience import PATIENCE

NAME = "org.quillmark.Agent"
PATH = "/org/quillmark/Agent"
INTERFACE = "org.freedesktop.Application"
DAEMON = "org.freedesktop.DBus"


def _call(method, arguments, destination=NAME, path=PATH, interface=INTERFACE):
    return Gio.bus_get_sync(Gio.BusType.SESSION).call_sync(
        destination, path, interface, method, arguments, None,
        Gio.DBusCallFlags.NO_AUTO_START, int(1000 * PATIENCE), None,
    )


def owner():
    """The process that has the application's name."""
    (pid,) = _call("GetConnectionUnixProcessID", GLib.Variant("(s)", (NAME,)), DAEMON, "/", DAEMON)
    return pid


def activate(platform_data):
    """Brings the panel forward. The data are variants by name."""
    _call("Activate", GLib.Variant("(a{sv})", (platform_data,)))


def activate_with(token):
    """With a desktop's permission to take the focus."""
    activate({"activation-token": GLib.Variant("s", token)})


def act(name):
    """Runs an action of the desktop entry."""
    _call("ActivateAction", GLib.Variant("(sava{sv})", (name, [], {})))
