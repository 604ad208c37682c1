# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""How long a test waits for an expected event, in seconds."""

import os

# Only ends a test that hangs: it is ten times the slowest wait on an idle machine.
PATIENCE = 120.0 * int(os.environ.get("QUILLMARK_TEST_PATIENCE", "1"))
