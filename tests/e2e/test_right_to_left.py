# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Where texts run from right to left, the layout stays as it is."""

import pytest

from harness import bodies
from harness.layout import assert_uncut
from harness.panel import TABS

pytestmark = pytest.mark.usefixtures("token")

ARABIC = "مرحبا بالعالم"
CONTENTS = {
    "status": bodies.status(threat_count=1, last_scan="yesterday"),
    "alerts": bodies.alerts(bodies.alert(ARABIC, "high", description=ARABIC)),
    "network": bodies.network(bodies.connection(state=ARABIC)),
    "inventory": bodies.inventory(bodies.app(ARABIC, version="1")),
}


def layout(launch, **environment):
    panel = launch(CONTENTS, **environment)
    panel.window.move(0, 0)
    # So high that all is shown, whatever the font.
    panel.resize(1000, 1200)
    panel.tree.wait_for("text", "OK")
    found = {}
    for tab in TABS:
        panel.show(tab)
        tree = panel.tree.read()
        assert_uncut(tree)
        found[tab] = [(i.role, i.name, i.box) for i in tree.walk()]
    panel.finish()
    return found


@pytest.mark.parametrize("locale", ["ar_EG.UTF-8", "he_IL.UTF-8", "fa_IR.UTF-8"])
def test_nothing_is_mirrored(launch, locale):
    usual = layout(launch)
    # Every text begins at the left, whatever its script.
    (row,) = [box for role, name, box in usual["Alerts"] if role == "row"]
    begins = {box.x for _, name, box in usual["Alerts"] if name == ARABIC}
    assert len(begins) == 1 and begins.pop() - row.x < 60
    here = layout(launch, LC_ALL=locale, LANGUAGE=locale[:2])
    for tab in TABS:
        assert [item[:2] for item in here[tab]] == [item[:2] for item in usual[tab]]
        # The locale's own font moves things a little; mirroring would move them by half a window.
        assert all(abs(one.x - other.x) < 100
                   for (_, _, one), (_, _, other) in zip(here[tab], usual[tab]))


def test_last_scan_in_arabic_keeps_its_place(launch):
    panel = launch({"status": bodies.status()}, LC_ALL="ar_EG.UTF-8")
    title = panel.tree.wait_for("text", "Last Scan")
    window = panel.window.box
    assert window.right - title.box.right in (20, 21)
    assert not panel.tree.find("text", "1/15/24, 10:30 AM"), "it is in the locale's own form"
    assert_uncut(panel.tree.read())
