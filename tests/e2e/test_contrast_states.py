# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What is disabled, focused, hovered, pressed or selected has enough contrast, too."""

import contextlib

import pytest

from harness import bodies, colours, hands, large, settings, xdotool
from harness.contrast import inked
from harness.large import drawn
from harness.panel import Panel
from harness.settings import BROWSE, KEY, SAVE, SERVER, START, STOP
from harness.waiting import until
from harness.window import Box

TEXT = 4.5
CONTROL = 3.0
SCREEN = large.SCREEN

pytestmark = pytest.mark.usefixtures("clean_home", "token")


@pytest.fixture(scope="module")
def large_panel(display, token, backend):
    panel = Panel(QT_SCALE_FACTOR=str(large.SCALE)).opened()
    large.resize(panel.window, *large.SIZE)
    yield panel
    panel.finish()


@pytest.fixture
def form(large_panel):
    """A Settings tab that was created again."""
    large_panel.show("Alerts")
    large_panel.show("Settings")
    return large_panel


def ratio(panel, which):
    return inked(large.picture().pixels(drawn(panel.tree.find(*which).box)))


def test_disabled(form):
    hands.park()
    box = drawn(form.tree.find(*SAVE).box)
    # Beside its icon and text is the background of a disabled button.
    until(lambda: large.picture().pixel(box.x + 60, box.centre[1]) == colours.GRAY, "it to be gray")
    assert ratio(form, SAVE) >= TEXT


@contextlib.contextmanager
def held(box):
    """Keeps the mouse button pressed on the box, and releases it elsewhere."""
    xdotool.do("mousemove", *map(str, box.centre), "mousedown", "1")
    try:
        yield
    finally:
        xdotool.do("mousemove", "0", "0", "mouseup", "1")


@pytest.mark.parametrize("which", [("tab", "Settings"), ("tab", "Alerts"), START, STOP, BROWSE])
def test_hovered_and_pressed(form, which):
    box = drawn(form.tree.find(*which).box)
    xdotool.do("mousemove", *map(str, box.centre))
    assert ratio(form, which) >= TEXT
    with held(box):
        assert ratio(form, which) >= TEXT


def inner(field):
    """Part of a field's text, without its border and the cursor: these have more contrast."""
    box = drawn(field.box)
    return Box(box.x + 36, box.y + 21, 100, box.height - 42)


def test_hint_of_a_focused_field(form):
    field = form.focus_on(*KEY)
    hands.park()
    assert inked(large.picture().pixels(inner(field))) >= TEXT


@pytest.mark.parametrize("which", [SERVER, KEY])
def test_selected_text(form, which):
    settings.fill(form, which, "something")
    hands.key("ctrl+a")
    selected = inner(form.tree.find(*which))
    pixels = until(lambda: colours.BLUE in large.picture().colours(selected)
                   and list(large.picture().pixels(selected)), "the text to be selected")
    assert inked(pixels) >= TEXT


def test_scroll_bar(large_panel, backend):
    panel = large_panel
    backend.reply(inventory=bodies.inventory(*[bodies.app(f"App {n}") for n in range(50)]))
    panel.show("Inventory")
    panel.tree.wait_for("text", "App 0")
    hands.park()
    rows = drawn(panel.tree.wait_for("list", "Installed applications").box)
    # The upper part of the bar, and the background beside it, without texts.
    strip = Box(rows.right - 33, rows.y + 30, 18, rows.height - 60)
    until(lambda: inked(large.picture().pixels(strip)) >= CONTROL, "a bar with enough contrast")
    backend.reply(**bodies.everyday())
