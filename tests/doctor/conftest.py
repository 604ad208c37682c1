# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""What every file of the doctor's tests stands on."""

import os
import shutil
import sys
from pathlib import Path

import pytest

# A real HTTP server at the agent's place, token files, waiting: as for the panel.
sys.path.insert(0, str(Path(__file__).parent.parent / "e2e"))
pytest.register_assert_rewrite("scene")

from harness.backend import Backend  # noqa: E402

import scene  # noqa: E402


def pytest_configure():
    # Outside, the tests would write real token paths and take the real port.
    assert os.environ.get("QUILLMARK_SANDBOX"), "run these in tests/support/sandbox"


@pytest.fixture(autouse=True)
def machine():
    """Token, configuration and log folder as they should be."""
    scene.tidy()
    yield
    for folder in (scene.HOME, scene.SYSTEM_TOKEN.parent):
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(mode=0o700)


@pytest.fixture
def backend():
    """Answers as an everyday agent does until a test says otherwise."""
    backend = Backend().start()
    yield backend
    backend.stop()
