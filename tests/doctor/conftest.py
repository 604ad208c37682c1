# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Fixtures for all tests of the doctor."""

import os
import shutil
import sys
from pathlib import Path

import pytest

# Uses the harness of the panel's tests: HTTP server, token files, waiting.
sys.path.insert(0, str(Path(__file__).parent.parent / "e2e"))
pytest.register_assert_rewrite("scene")

from harness.backend import Backend  # noqa: E402

import scene  # noqa: E402


def pytest_configure():
    # Outside, the tests would write the real token files and use the real port.
    assert os.environ.get("QUILLMARK_SANDBOX"), "run these in tests/support/sandbox"


@pytest.fixture(autouse=True)
def machine():
    """A valid token, configuration and log folder."""
    scene.tidy()
    yield
    for folder in (scene.HOME, scene.SYSTEM_TOKEN.parent):
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(mode=0o700)


@pytest.fixture
def backend():
    """Gives good answers until a test sets others."""
    backend = Backend().start()
    yield backend
    backend.stop()
