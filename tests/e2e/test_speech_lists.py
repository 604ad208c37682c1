# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Lists read by keyboard with a screen reader, and rows copied."""

import pytest

from harness import bodies, clipboard, hands
from harness.lists import listed
from harness.waiting import until

LIST = "Network connections"
COUNT = 40


def connections(state="LISTEN", count=COUNT):
    return bodies.network(*[bodies.connection(str(i), state=state) for i in range(count)])


def row(index, state="LISTEN"):
    return f"127.0.0.1:{index}, → 10.0.0.5:443, {state}"


def words(index, state="LISTEN", count=COUNT):
    return f"{row(index, state)}.", f"{index + 1} of {count}."


@pytest.fixture
def panel(spoken_panel, screen_reader, backend):
    """The list with the first row read."""
    backend.reply(network=connections())
    # The list begins at its first row each time that its tab is selected.
    spoken_panel.show("Dashboard")
    spoken_panel.focus_on("tab", "Dashboard")
    spoken_panel.tree.wait_for("text", str(COUNT))
    spoken_panel.show("Network")
    until(lambda: spoken_panel.tree.find("row", row(0)), "the rows")
    spoken_panel.focus_on("tab", "Settings")
    screen_reader.hear("Settings page tab.")
    screen_reader.press("Tab")
    screen_reader.hear(f"{LIST}.", *words(0))
    return spoken_panel


def test_keys_read_row_by_row(panel, screen_reader):
    for key, index in (("Down", 1), ("Down", 2), ("Up", 1), ("End", COUNT - 1), ("Home", 0)):
        screen_reader.press(key)
        screen_reader.hear_only(*words(index))


def test_page_keys_read_a_row_of_the_next_page(panel, screen_reader):
    last = listed(panel, LIST)[1][-1].name
    screen_reader.press("Next")
    until(lambda: panel.focus().name != row(0), "another row")
    screen_reader.hear(f"{panel.focus().name}.")
    assert int(panel.focus().name.split(":")[1].split(",")[0]) >= int(
        last.split(":")[1].split(",")[0]) - 1
    screen_reader.press("Prior")
    screen_reader.hear(*words(0))


def test_the_row_is_in_view_wherever_it_is(panel, screen_reader):
    for _ in range(15):
        screen_reader.press("Down")
    screen_reader.hear(*words(15))
    assert panel.tree.find("list", LIST).box.holds(panel.focus().box)


def test_polls_leave_the_position_and_say_nothing(panel, screen_reader, backend):
    screen_reader.press("Down", "Down")
    screen_reader.hear(*words(2))
    screen_reader.forget()
    for count in (COUNT, COUNT + 10, COUNT - 10):
        backend.reply(network=connections("CLOSED", count))
        until(lambda: panel.focus().name == row(2, "CLOSED")
              and panel.tree.find("row", row(0, "CLOSED")), "the new rows")
        backend.wait_for_poll()
        backend.reply(network=connections("LISTEN", count))
        until(lambda: panel.focus().name == row(2), "the old state")
    screen_reader.press("Down")
    # A newer version also says that the row at the reading position has changed.
    screen_reader.hear_only(*words(3, count=COUNT - 10), newer_also=":2,")


def test_copy_by_key(panel, screen_reader):
    screen_reader.press("Down")
    screen_reader.hear(*words(1))
    screen_reader.press("ctrl+c")
    screen_reader.hear("notification Copied.")
    assert clipboard.text() == row(1)


@pytest.mark.parametrize("key", ["Menu", "shift+F10"])
def test_copy_by_the_menu(panel, screen_reader, key):
    screen_reader.press("Down", "Down")
    screen_reader.hear(*words(2))
    screen_reader.press(key)
    screen_reader.hear("Copy.")
    screen_reader.press("Return")
    screen_reader.hear(*words(2))
    assert clipboard.text() == row(2)


def test_escape_closes_the_menu(panel, screen_reader):
    screen_reader.press("Menu")
    screen_reader.hear("Copy.")
    screen_reader.press("Escape")
    screen_reader.hear(*words(0))


def test_copy_by_a_right_click(panel, screen_reader):
    third = panel.tree.find("row", row(3)).box
    hands.click(third, button=3)
    entry = panel.tree.wait_for("menu item", "Copy")
    hands.click(entry.box)
    screen_reader.hear("notification Copied.")
    assert clipboard.text() == row(3)
    until(lambda: panel.focus().name == row(3), "the focus back on the row")
