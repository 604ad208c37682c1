# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The packages as they are installed in a bare system, which is no more than
the root of one: display, window manager and buses are those of the sandbox."""

import os
import sys
from pathlib import Path

import pytest

sys.path.insert(0, str(Path(__file__).parents[1] / "e2e"))
pytest.register_assert_rewrite("harness")

import bare  # noqa: E402

# What the end-to-end tests' harness is to start.
os.environ["QUILLMARK_TEST_PANEL"] = bare.entry().command()[0]

from harness import processes, settings  # noqa: E402
from harness.display import Display  # noqa: E402
from installed import InstalledPanel  # noqa: E402


@pytest.fixture(scope="module")
def display():
    display = Display()
    yield display
    display.stop()


@pytest.fixture
def new_user():
    """No configuration, no token, no log folder, no agent."""
    settings.clean_home()
    yield
    processes.end_agents()


@pytest.fixture
def start(display, new_user):
    """The panel from its entry in the menu, as often as asked."""
    panels = []

    def once():
        panels.append(InstalledPanel().opened())
        return panels[-1]

    yield once
    for panel in panels:
        panel.finish()
