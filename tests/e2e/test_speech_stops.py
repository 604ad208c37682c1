# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Each stop of the Tab key says something, once, in each tab.

The words are written to build/test-results/access.md; docs/access.md is a copy.
"""

import pytest

from harness import hands, settings
from harness.panel import TABS
from harness.screen import BUILD
from harness.waiting import until

HEAD = """<!--
SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
SPDX-License-Identifier: GPL-3.0-or-later
-->
"""
WRITTEN = BUILD / "test-results" / "access.md"


@pytest.fixture(scope="module")
def page():
    lines = []
    yield lines
    WRITTEN.write_text(HEAD + "\n".join(lines) + "\n")


def stops(panel, screen_reader):
    """What is said at each stop, from the active tab's first one to Minimize."""
    found = []
    while panel.focus().name != "Minimize":
        before = panel.focus()
        screen_reader.press("Tab")
        focus = until(lambda: panel.focus() not in (before, None) and panel.focus(),
                      "the next stop")
        found.append((focus, screen_reader.hear_about(focus.name or "password")))
    return found[:-1]


@pytest.mark.parametrize("tab", TABS)
def test_stops(spoken_panel, screen_reader, page, clean_home, tab):
    panel = spoken_panel
    panel.tree.wait_for("text", "OK")
    panel.show(tab)
    if tab == "Settings":
        settings.fill(panel, settings.KEY, "k")
    panel.focus_on("tab", "Settings")
    screen_reader.forget()
    hands.park()
    found = stops(panel, screen_reader)
    page += [f"\n### {tab}\n", "| Stop | Words |", "|---|---|"]
    for focus, said in found:
        assert said, f"silence at {focus.name!r}"
        assert len(set(said)) == len(said), f"twice: {said}"
        page.append(f"| {focus.name or 'API Key'} | {' '.join(said)} |")
