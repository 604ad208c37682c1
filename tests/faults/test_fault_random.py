# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The sample agent when the system gives no random bytes for its token."""

import os
import subprocess
from pathlib import Path

from patience import PATIENCE

AGENT = Path(os.environ["QUILLMARK_BUILD_DIR"], "QuillmarkAgent.app/Contents/MacOS/tovel-agent")
TOKENS = [Path("/var/run/quillmark/token"), Path(os.environ["HOME"], ".quillmark/token")]


def test_no_token_without_random_bytes():
    done = subprocess.run(
        ["strace", "-f", "-o", "/dev/null", "--inject=getrandom:error=ENOSYS", AGENT],
        capture_output=True, text=True, timeout=PATIENCE, check=False)
    assert done.returncode == 1
    assert done.stderr in [f"{path}: Function not implemented\n" for path in TOKENS]
    assert not any(path.exists() for path in TOKENS)
