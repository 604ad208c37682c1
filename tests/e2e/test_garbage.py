# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The panel works when garbage is collected as often as possible."""

import pytest

from harness.panel import TABS
from harness.tour import tour

pytestmark = pytest.mark.usefixtures("token", "clean_home")


def test_tabs_settings_and_windows(launch, backend):
    panel = launch(QV4_MM_AGGRESSIVE_GC="1")
    tour(panel)
    panel.close()
    panel.launch_again()
    # The agent ends and returns: rows, icons and colours change.
    backend.stop()
    panel.tree.wait_for("text", "OFFLINE")
    for tab in TABS:
        panel.show(tab)
    backend.start()
    panel.tree.wait_for("text", "OK")
    for tab in TABS:
        panel.show(tab)
