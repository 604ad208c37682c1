# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The packages, installed in a bare system, which is only a root folder: display,
window manager and buses are those of the sandbox."""

import os
import sys
from pathlib import Path

import pytest

sys.path.insert(0, str(Path(__file__).parents[1] / "e2e"))
pytest.register_assert_rewrite("harness")

import bare  # noqa: E402

# The panel that the harness of the end-to-end tests starts.
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
    """Starts the panel from its menu entry, once for each call."""
    panels = []

    def once():
        panels.append(InstalledPanel().opened())
        return panels[-1]

    yield once
    for panel in panels:
        panel.finish()
