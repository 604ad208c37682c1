# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""When a program crashes, its stack is written to the test results."""

import os
import signal
import subprocess
from pathlib import Path

BUILD = Path(os.environ["QUILLMARK_BUILD_DIR"])
PROGRAM = BUILD / "tests/support/crash/crashing_program"


def test_crash_report_has_function_names(tmp_path):
    environment = os.environ | {"QUILLMARK_CRASH_FOLDER": str(tmp_path)}
    done = subprocess.run([PROGRAM], env=environment, check=False)
    assert done.returncode == -signal.SIGSEGV
    (report,) = tmp_path.glob("crash-crashing_program-*.txt")
    text = report.read_text()
    assert "readThrough" in text
    assert "main" in text


def test_no_report_without_a_crash(tmp_path):
    environment = os.environ | {"QUILLMARK_CRASH_FOLDER": str(tmp_path)}
    assert subprocess.run([PROGRAM, "well"], env=environment, check=False).returncode == 2
    assert not list(tmp_path.iterdir())


def test_every_test_reports_crashes_to_test_results():
    assert os.environ["QUILLMARK_CRASH_FOLDER"] == str(BUILD / "test-results")
