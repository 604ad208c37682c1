# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A window that had the file dialog closes like any other, also with a screen reader."""

import pytest

from harness import hands, picker, settings
from harness.settings import CONFIG
from harness.waiting import until

pytestmark = pytest.mark.usefixtures("clean_home", "token")


@pytest.fixture
def panel(launch, tmp_path):
    (tmp_path / "config.toml").write_text("[agent]\n")
    panel = launch()
    panel.show("Settings")
    return panel


def cancel(panel, _):
    with picker.opened(panel):
        pass


def choose(panel, path):
    picker.choose(panel, path)
    settings.wait_for_message(panel, settings.IMPORTED)


def cancel_twice_and_leave_the_tab(panel, path):
    cancel(panel, path)
    cancel(panel, path)
    panel.show("Alerts")


@pytest.mark.parametrize("use", [cancel, choose, cancel_twice_and_leave_the_tab])
def test_the_process_keeps_running(panel, backend, tmp_path, use):
    heard = panel.tree.listen()
    use(panel, tmp_path / "config.toml")
    panel.tree.read()
    assert heard, "no event was announced"
    panel.close()
    backend.wait_for_poll()
    assert not panel.ended()
    # The dialog of the next window works.
    CONFIG.unlink(missing_ok=True)
    panel.launch_again()
    panel.show("Settings")
    choose(panel, tmp_path / "config.toml")
    assert CONFIG.exists()


def test_closed_by_the_desktop_while_the_dialog_is_open(panel, backend):
    heard = panel.tree.listen()
    picker.bring_up(panel)
    assert heard, "no event was announced"
    if panel.tree.find("window", picker.TITLE):
        # With Qt 6.8 the dialog is a window of its own, which closes first.
        hands.key("alt+F4")
        picker.wait_until_closed(panel)
    hands.key("alt+F4")
    until(lambda: not panel.windows(), "the window to close")
    backend.wait_for_poll()
    assert not panel.ended()
    panel.launch_again()
    panel.tree.wait_for("text", "OK")
