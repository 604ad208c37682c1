# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""How long a test waits for what must come, in seconds."""

import os

# Ends what hangs, and nothing else: ten times what the slowest wait takes on a
# quiet machine.
PATIENCE = 120.0 * int(os.environ.get("QUILLMARK_TEST_PATIENCE", "1"))
