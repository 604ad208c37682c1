# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The built panel as a running process."""

import os
import re
import subprocess
import tempfile

from patience import PATIENCE

from . import hands, window
from .accessible import Tree
from .screen import BUILD
from .waiting import until

PROGRAMS = BUILD / "QuillmarkAgent.app/Contents/MacOS"
EXECUTABLE = os.environ.get("QUILLMARK_TEST_PANEL") or str(PROGRAMS / "quillmark-agent")

# Of Qt 6.8, where the locale that a test names is not installed.
MISSING_LOCALE = re.compile(r'Detected locale "C" (?s:.*?)for more information\.\n')

# What Qt says about assistive technology: 6.4 for each key that it did not answer in time,
# and for its late answer; 6.8 for an event that Qt does not know, and for requests for items
# that a poll has removed.
ASSISTIVE_TECHNOLOGY = re.compile(
    r"(QSpiApplication::(keyEventError|notifyKeyboardListenerCallback) "
    r"|qt\.accessibility\.atspi: (Subscription string not handled"
    r"|Could not find accessible on path): ).*\n")

# Makes Qt serve assistive technology, whether the desktop asks for it or not.
ALWAYS_ON = "QT_LINUX_ACCESSIBILITY_ALWAYS_ON"

TABS = ("Dashboard", "Network", "Inventory", "Alerts", "Settings")


def spawn(output, *prefix, **changes):
    """Starts the executable, with the prefix before it. The value None removes an
    environment variable."""
    environment = os.environ | {ALWAYS_ON: "1"} | changes
    environment = {k: v for k, v in environment.items() if v is not None}
    # These tests need a real window, even if the unit tests run without one.
    environment.pop("QT_QPA_PLATFORM", None)
    return subprocess.Popen(
        [*prefix, EXECUTABLE], env=environment, stdin=subprocess.DEVNULL,
        stdout=output, stderr=subprocess.STDOUT,
    )


def quit_by_command(**changes):
    """Asks the session's panel to end, as a script does."""
    return subprocess.run([EXECUTABLE, "--quit"], capture_output=True, text=True,
                          timeout=PATIENCE, env=os.environ | changes, check=False)


class Panel:
    running = []

    def __init__(self, *prefix, **changes):
        self._output = tempfile.TemporaryFile()
        # A pattern for the output of the shells that the panel starts.
        self.expected_output = ""
        # Assistive technology gets boxes in unscaled units.
        self.scale = float(changes.get("QT_SCALE_FACTOR", "1"))
        self._is_accessible = changes.get(ALWAYS_ON, "1") is not None
        hands.park()
        self.process = spawn(self._output, *prefix, **changes)
        self.pid = self.process.pid
        self.tree = Tree(self.pid, self.ended)
        Panel.running.append(self)

    def opened(self):
        """Waits until the window is open and active."""
        until(lambda: self._is_active() or self.ended(), "the panel's window to be active")
        assert not self.ended(), f"ended at start: {self.output()}"
        return self

    def _is_active(self):
        # Active is not yet shown: the window manager may have the window unmapped to frame it.
        # The panel itself must know it: Qt drops shortcuts that come earlier.
        return window.active_process() == self.pid and self.windows() and (
            not self._is_accessible or self.tree.has_active_window())

    def windows(self):
        return window.visible(self.pid)

    @property
    def window(self):
        return until(self.windows, "the panel's window to be shown")[0]

    def resize(self, width, height):
        """In unscaled units. Returns once the panel has laid itself out in that size."""
        self.window.resize(width, height)
        until(lambda: self.tree.read().every("window")[0].box[2:] == (width, height),
              f"a window of {width} by {height}")

    def ended(self):
        return self.process.poll() is not None

    def output(self):
        self._output.seek(0)
        return self._output.read().decode(errors="replace")

    def show(self, tab):
        """Chooses a tab by its key and returns its button once it is active."""
        hands.key(f"ctrl+{TABS.index(tab) + 1}")
        return self.selected(tab)

    def selected(self, tab):
        def chosen():
            found = self.tree.find("tab", tab)
            return found and "selected" in found.states and found

        return until(chosen, f"the tab {tab} to be active")

    def focus_on(self, role, name):
        """Sets the focus directly, as assistive technology does."""
        return self.focus_item(self.tree.wait_for(role, name))

    def focus_item(self, item):
        """The same for an item that has been read."""
        self.tree.act(item, "SetFocus")
        return until(lambda: self._has_focus(self.focus(), item.role, item.name),
                     f"the focus on {item.name!r}")

    def press_until_focused(self, role, name, key="Tab", most=40):
        """Moves the focus by key presses, as a keyboard user does."""
        focus = self.focus()
        for _ in range(most):
            if self._has_focus(focus, role, name):
                break
            focus = self.press_to_move(key, focus)
        assert self._has_focus(focus, role, name), f"{key} does not reach {role} {name!r}"
        return focus

    def press_to_move(self, key, last):
        """Presses a key that moves the focus away from the item `last`; returns the next."""
        def moved():
            # Twice, because a reading amid the change has no focus, or only that of a group.
            # By address, because the page scrolls to the item, which gets other boxes.
            first, second = self.focus(), self.focus()
            return (first and second and first.address == second.address
                    and not (last and last.address == second.address) and second)

        hands.key(key)
        return until(moved, "the focus to move")

    def _has_focus(self, focus, role, name):
        if role == "list" and focus and focus.role == "row":
            # A list gives the focus to one of its rows.
            return self.tree.find(role, name) and focus
        return focus and (focus.role, focus.name) == (role, name) and focus

    def focus(self):
        """The innermost focused item; None if that is the window itself."""
        focused = self.tree.focus()
        return focused[-1] if focused and focused[-1].role != "window" else None

    def close(self):
        hands.key("ctrl+w")
        until(lambda: not self.windows(), "the window to close")

    def launch_again(self):
        """Another launch brings this panel forward and ends without output."""
        with tempfile.TemporaryFile() as output:
            assert spawn(output).wait(timeout=PATIENCE) == 0
            output.seek(0)
            assert output.read() == b""
        until(self._is_active, "a window to be active")

    def finish(self):
        """Quits as a user does. Fails if the panel crashed or printed something."""
        try:
            if not self.ended():
                if windows := self.windows():
                    window.tool("xdotool", "windowactivate", "--sync",
                                str(windows[0].identifier))
                    hands.key("ctrl+q")
                    until(self.ended, "the panel to quit on Ctrl+Q")
                else:
                    self.process.terminate()
                    self.process.wait()
                    assert self.process.returncode in (0, -15)
                    return
            assert self.process.returncode == 0, "the panel's exit code"
        finally:
            self.dismiss()
            said = ASSISTIVE_TECHNOLOGY.sub("", MISSING_LOCALE.sub("", self.output()))
            assert re.fullmatch(self.expected_output, said), f"the panel's output:\n{said}"

    def dismiss(self):
        if not self.ended():
            self.process.kill()
            self.process.wait()
        if self in Panel.running:
            Panel.running.remove(self)
