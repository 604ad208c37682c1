# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Direct calls on the accessibility bus.

The usual Python binding makes one call at a time, and its caches become outdated
between polls. Whole trees are read by a separate program.
"""

import json
import subprocess

from gi.repository import Gio, GLib

from .screen import BUILD

READER = BUILD / "tests/e2e/accessible_tree"

ROOT = "/org/a11y/atspi/accessible/root"
ACCESSIBLE = "org.a11y.atspi.Accessible"
PROPERTIES = "org.freedesktop.DBus.Properties"
ACTION = "org.a11y.atspi.Action"
TEXT = "org.a11y.atspi.Text"
VALUE = "org.a11y.atspi.Value"
ACTIVE = 1  # a state's number
WHOLE = GLib.Variant("(ii)", (0, -1))


def _address():
    session = Gio.bus_get_sync(Gio.BusType.SESSION)
    (address,) = session.call_sync(
        "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress",
        None, None, Gio.DBusCallFlags.NONE, -1, None,
    )
    return address


def _connect(address):
    flags = Gio.DBusConnectionFlags
    return Gio.DBusConnection.new_for_address_sync(
        address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None
    )


class Bus:
    def __init__(self):
        address = _address()
        self._connection = _connect(address)
        self._reader = subprocess.Popen([READER, address], stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, text=True, bufsize=1)

    def application(self, pid):
        """The address of a process's root, or None."""
        registry = ("org.a11y.atspi.Registry", ROOT)
        (known,) = self._ask([(registry, (ACCESSIBLE, "GetChildren", None))])[0]
        daemon = ("org.freedesktop.DBus", "/org/freedesktop/DBus")
        owners = self._ask([
            (daemon, (daemon[0], "GetConnectionUnixProcessID", GLib.Variant("(s)", (name,))))
            for name, _ in known
        ])
        return next((app for app, (owner,) in zip(known, owners) if owner == pid), None)

    def has_active_window(self, application):
        (windows,) = self._ask([(application, (ACCESSIBLE, "GetChildren", None))])[0]
        answers = self._ask([(window, (ACCESSIBLE, "GetState", None)) for window in windows])
        return any(low >> ACTIVE & 1 for ((low, _),) in answers)

    # What these read is a list, or None if the tree changed meanwhile.

    def tree(self, node):
        """The node with everything visible below it."""
        return self._read("tree", node)

    def find(self, node, roles, names):
        """The first item below the node with one of the roles, which are numbers, and one
        of the names, with everything below it."""
        return self._read("find", node, roles=roles, names=names)

    def focus(self, node):
        """The focused items below the node, innermost last."""
        return self._read("focus", node)

    def _read(self, what, node, **wanted):
        """Also handles the events that have arrived until then."""
        bus, path = node
        line = json.dumps({"read": what, "bus": bus, "path": path} | wanted)
        self._reader.stdin.write(line + "\n")
        line = self._reader.stdout.readline()
        assert line, "the reader of accessible trees has ended"
        while GLib.MainContext.default().pending():
            GLib.MainContext.default().iteration(False)
        return json.loads(line) if line.strip() else None

    def text(self, node):
        return self._ask([(node, (TEXT, "GetText", WHOLE))])[0][0]

    def press(self, node):
        self._ask([(node, (ACTION, "DoAction", GLib.Variant("(i)", (0,))))])

    def act(self, node, action):
        """Calls the node's action of this name."""
        ((offered,),) = self._ask([(node, (ACTION, "GetActions", None))])
        names = [name for name, _, _ in offered]
        assert action in names, f"{action} is not among {names}"
        number = GLib.Variant("(i)", (names.index(action),))
        self._ask([(node, (ACTION, "DoAction", number))])

    def description(self, node):
        asked = GLib.Variant("(ss)", (ACCESSIBLE, "Description"))
        return self._ask([(node, (PROPERTIES, "Get", asked))])[0][0]

    def words(self, node):
        """All text properties of a node."""
        asked = [
            (PROPERTIES, "Get", GLib.Variant("(ss)", (ACCESSIBLE, name)))
            for name in ("Name", "Description")
        ]
        asked += [(ACCESSIBLE, "GetAttributes", None), (ACCESSIBLE, "GetInterfaces", None)]
        ((interfaces,),) = self._ask([(node, asked[-1])])
        if TEXT in interfaces:
            asked.append((TEXT, "GetText", WHOLE))
        if VALUE in interfaces:
            asked.append((PROPERTIES, "GetAll", GLib.Variant("(s)", (VALUE,))))
        return repr(self._ask([(node, question) for question in asked]))

    def listen(self):
        """A list that grows with every event of any program: the address of the object,
        the event and its values."""
        heard = []
        registry = ("org.a11y.atspi.Registry", "/org/a11y/atspi/registry")
        self._ask([(registry, (registry[0], "RegisterEvent", GLib.Variant("(s)", ("object:",))))])
        self._connection.signal_subscribe(
            None, "org.a11y.atspi.Event.Object", None, None, None, Gio.DBusSignalFlags.NONE,
            lambda _, sender, path, __, name, values:
                heard.append(((sender, path), name, values.unpack())),
        )
        return heard

    def _ask(self, calls):
        answers = [None] * len(calls)
        missing = len(calls)

        def answered(connection, result, index):
            nonlocal missing
            missing -= 1
            try:
                answers[index] = connection.call_finish(result).unpack()
            except GLib.Error as error:
                answers[index] = error

        for index, ((name, path), (interface, method, arguments)) in enumerate(calls):
            self._connection.call(
                name, path, interface, method, arguments, None,
                Gio.DBusCallFlags.NONE, -1, None, answered, index,
            )
        while missing:
            GLib.MainContext.default().iteration(True)
        for answer in answers:
            if isinstance(answer, GLib.Error):
                raise answer
        return answers
