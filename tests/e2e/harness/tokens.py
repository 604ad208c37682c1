# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The token files, at their real paths (the sandbox keeps them private)."""

import os
import shutil
from pathlib import Path

SYSTEM = Path("/var/run/quillmark/token")
HOME = Path(os.environ["HOME"]) / ".quillmark" / "token"


def write(path, content, mode=0o600):
    """`content` is bytes, text, or None for no file."""
    remove(path)
    if content is None:
        return
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(content.encode() if isinstance(content, str) else content)
    path.chmod(mode)


def make_fifo(path):
    remove(path)
    path.parent.mkdir(parents=True, exist_ok=True)
    os.mkfifo(path)


def remove(path):
    shutil.rmtree(path.parent, ignore_errors=True)
