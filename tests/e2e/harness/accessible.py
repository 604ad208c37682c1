# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The panel as assistive technology reads it.

A whole tree is read into plain values, so that a test never asks a control that
a poll has replaced meanwhile.
"""

from dataclasses import dataclass, field

from gi.repository import GLib

from . import atspi
from .waiting import until
from .window import Box

# Numbers of the accessibility protocol.
ROLES = {
    11: "combo box",
    16: "dialog",
    23: "window",
    29: "text",
    31: "list",
    32: "row",
    35: "menu item",
    37: "tab",
    38: "tab list",
    39: "group",
    40: "password",
    41: "menu",
    43: "button",
    61: "field",
    75: "application",
    85: "group",
    101: "notification",
    116: "text",
}
STATES = {11: "focusable", 12: "focused", 23: "selected", 25: "showing"}

MOST_READINGS = 20  # of a tree that never rests


@dataclass(frozen=True)
class Item:
    role: str
    name: str
    box: Box
    states: frozenset
    children: tuple
    # Its D-Bus address, which another object may get later.
    address: tuple = field(default=None, compare=False, repr=False)

    def walk(self):
        yield self
        for child in self.children:
            yield from child.walk()

    def every(self, role):
        return [item for item in self.walk() if item.role == role]

    def texts(self):
        return [item.name for item in self.every("text")]

    def find(self, role, name):
        return next((i for i in self.every(role) if i.name == name), None)

    def dump(self, depth=0):
        states = " ".join(sorted(self.states))
        line = f"{'  ' * depth}{self.role} {self.name[:80]!r} {tuple(self.box)} {states}"
        return "\n".join([line, *(child.dump(depth + 1) for child in self.children)])


def _states(low):
    return frozenset(word for bit, word in STATES.items() if low >> bit & 1)


def _item(node):
    """Leaves out hidden children, as assistive technology does."""
    children = (_item(child) for child in node["children"])
    shown = tuple(child for child in children if "showing" in child.states)
    role = ROLES.get(node["role"], f"role {node['role']}")
    return Item(role, node["name"], Box(*node["box"]), _states(node["states"]), shown,
                tuple(node["address"]))


class Tree:
    """The visible items of one process. `ended` returns whether the process has
    ended; then there is nothing to wait for."""

    def __init__(self, pid, ended):
        self._pid = pid
        self._ended = ended
        self._bus = atspi.Bus()
        self._root = None

    def read(self):
        """Once it is the same twice: one reading of a tree that is being laid out mixes
        old and new."""
        seen = self._look()
        for _ in range(MOST_READINGS):
            last, seen = seen, self._look()
            if seen == last:
                break
        return seen

    def _look(self):
        (root,) = self._items(self._bus.tree)
        return root

    def focus(self):
        """The focused items, innermost last, without their children."""
        return self._items(self._bus.focus)

    def has_active_window(self):
        return self._ask(self._bus.has_active_window)

    def find(self, role, *names):
        """The first item with the role and one of the names."""
        numbers = [number for number, word in ROLES.items() if word == role]
        found = self._items(lambda root: self._bus.find(root, numbers, names))
        return found[0] if found else None

    def _items(self, question):
        return [_item(node) for node in self._ask(question)]

    def _ask(self, question):
        """What the question returns about the root, once that is not None."""
        def attempt():
            assert not self._ended(), "the panel has ended"
            try:
                self._root = self._root or self._bus.application(self._pid)
                answer = self._root and question(self._root)
            except GLib.Error:
                return None  # Some program ended meanwhile; try again.
            return None if answer is None else (answer,)

        (answer,) = until(attempt, "the panel in the accessibility tree")
        return answer

    def wait_for(self, role, name):
        return until(lambda: self.find(role, name), f"{role} {name!r}")

    def wait_without(self, role, name):
        until(lambda: not self.find(role, name), f"{role} {name!r} to disappear")

    def text(self, item):
        """The text of a field, as a screen reader gets it."""
        return self._bus.text(item.address)

    def press(self, item):
        """Presses as assistive technology does, even a disabled item."""
        self._bus.press(item.address)

    def act(self, item, action):
        self._bus.act(item.address, action)

    def description(self, item):
        return self._bus.description(item.address)

    def words(self):
        """All text properties of all visible items."""
        return [self._bus.words(item.address) for item in self.read().walk()]

    def listen(self):
        """A list that grows with every event from now on."""
        return self._bus.listen()
