# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""An installation to try, in the sandbox."""

import os
import subprocess
import sys
from pathlib import Path

import pytest

sys.path.insert(0, str(Path(__file__).parents[1] / "e2e"))
pytest.register_assert_rewrite("harness")

from harness.display import Display  # noqa: E402
from harness.screen import BUILD  # noqa: E402

COMPONENTS = ("panel", "sample_agent")


class Installation:
    def __init__(self, prefix, notes, stage=""):
        self.prefix = Path(f"{stage}{prefix}")
        self._environment = os.environ | {"DESTDIR": str(stage)}
        self._notes = notes
        notes.mkdir()
        for component in COMPONENTS:
            subprocess.run(
                ["cmake", "--install", str(BUILD), "--prefix", str(prefix),
                 "--component", component],
                check=True, capture_output=True, env=self._environment,
            )
            # Not mixed with the manifest of a developer's own installation.
            note = BUILD / f"install_manifest_{component}.txt"
            with open(notes / "install_manifest.txt", "a") as all_notes:
                all_notes.write(note.read_text() + "\n")
            note.unlink()

    def paths(self):
        return sorted(str(p.relative_to(self.prefix)) for p in self.prefix.rglob("*"))

    def uninstall(self):
        script = Path(__file__).parents[2] / "cmake" / "Uninstall.cmake"
        subprocess.run(["cmake", "-P", str(script)], cwd=self._notes, check=True,
                       capture_output=True, env=self._environment)


@pytest.fixture
def install(tmp_path):
    return lambda prefix, **options: Installation(prefix, tmp_path / "notes", **options)


@pytest.fixture
def display():
    display = Display()
    yield display
    display.stop()
