# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The panel under a Wayland compositor, controlled by assistive actions: the
compositor lets no other program send input."""

import os
import subprocess
from pathlib import Path

import pytest

from harness.panel import Panel
from harness.screen import BUILD
from harness.waiting import never, until

SOCKET = "quillmark-test"


@pytest.fixture(scope="module")
def session(tmp_path_factory):
    """The environment of a program in a desktop's session, without an X server."""
    runtime = tmp_path_factory.mktemp("runtime")
    runtime.chmod(0o700)
    session = {"XDG_RUNTIME_DIR": str(runtime), "XDG_SESSION_TYPE": "wayland",
               "WAYLAND_DISPLAY": SOCKET}
    compositor = subprocess.Popen(
        ["weston", "--backend=headless-backend.so", "--use-pixman", "--idle-time=0", "--debug",
         "--width=1400", "--height=900", f"--socket={SOCKET}"],
        env=os.environ | session, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
    )
    until((runtime / SOCKET).exists, "the compositor")
    yield session
    compositor.terminate()
    compositor.wait()


@pytest.fixture
def panel(session, token, backend):
    panel = Panel(DISPLAY=None, **session)
    yield panel
    # Also fails when anything was written to the terminal.
    panel.finish()


def picture(session, folder):
    subprocess.run(["weston-screenshooter"], env=os.environ | session, cwd=folder, check=True,
                   capture_output=True)
    (made,) = Path(folder).glob("*.png")
    return made.read_bytes()


def test_shows_data_and_closes(panel, session, tmp_path):
    panel.tree.wait_for("text", "OK")
    (BUILD / "pictures").mkdir(exist_ok=True)
    (BUILD / "pictures" / "wayland.png").write_bytes(picture(session, tmp_path))
    panel.tree.act(panel.tree.find("tab", "Network"), "Press")
    panel.tree.wait_for("list", "Network connections")
    panel.tree.act(panel.tree.find("button", "Maximize"), "Press")
    panel.tree.wait_for("button", "Restore")
    panel.tree.act(panel.tree.find("button", "Close"), "Press")
    until(lambda: not panel.tree.read().every("window"), "the window to close")
    never(panel.ended, "the panel ended with its window", seconds=0.5)
