# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""A program that crashes leaves its stack in the results."""

import os
import signal
import subprocess
from pathlib import Path

BUILD = Path(os.environ["QUILLMARK_BUILD_DIR"])
PROGRAM = BUILD / "tests/support/crash/crashing_program"


def test_a_crash_leaves_a_stack_with_names(tmp_path):
    environment = os.environ | {"QUILLMARK_CRASH_FOLDER": str(tmp_path)}
    done = subprocess.run([PROGRAM], env=environment, check=False)
    assert done.returncode == -signal.SIGSEGV
    (report,) = tmp_path.glob("crash-crashing_program-*.txt")
    text = report.read_text()
    assert "readThrough" in text
    assert "main" in text


def test_no_crash_leaves_nothing(tmp_path):
    environment = os.environ | {"QUILLMARK_CRASH_FOLDER": str(tmp_path)}
    assert subprocess.run([PROGRAM, "well"], env=environment, check=False).returncode == 2
    assert not list(tmp_path.iterdir())


def test_every_test_leaves_it_in_the_results():
    assert os.environ["QUILLMARK_CRASH_FOLDER"] == str(BUILD / "test-results")
