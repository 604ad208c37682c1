# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Text that a view might interpret as markup, links or commands."""

import pytest

from harness import bodies
from harness.backend import ENDPOINTS
from harness.lists import listed, read_through

pytestmark = pytest.mark.usefixtures("token")

HOSTILE = [
    "<b>bold</b><script>alert(1)</script>",
    "<img src=http://127.0.0.1:7823/leak>",
    "<a href='http://127.0.0.1:7823/leak'>x</a> &amp; &lt;",
    "a<b && c>d",
    "<html><body style='background:url(http://127.0.0.1:7823/leak)'>x</body></html>",
    "one\ntwo\r\nthree\tfour",
    "\u05e9\u05dc\u05d5\u05dd \u202edcba\u202c \u0645\u0631\u062d\u0628\u0627",
    "\U0001f600 \U0001d518 \U00010428 e\u0301\u0301\u0301\u0301",
    "%1 %L2 %n {0} $HOME `id` \\n \"quoted\" &File",
    "http://127.0.0.1:7823/leak qrc:/x file:///etc/passwd",
    "x\u2028y\u2029z \u00ad\u200b\ufeff",
]
LONG = ("<i>0123456789 " * 75_000)[: 1 << 20]


def everywhere(text, **parts):
    """Bodies with a text in every field that holds one."""
    return {
        "status": bodies.status(status=text, last_scan=text, last_alert=text),
        "alerts": bodies.alerts(bodies.alert(
            text, text, title=text, description=text, file_path=text, timestamp=text)),
        "network": bodies.network({key: text for key in (
            "protocol", "local_address", "local_port", "remote_address", "remote_port",
            "state", "pid", "risk_level")}),
        "inventory": bodies.inventory(
            bodies.app(text, version=text, publisher=text, path=text),
            services=[text], interfaces=[text], permissions=[text]),
    } | parts


def merged(contents):
    """The rows of several contents in one."""
    return {
        "alerts": bodies.alerts(*[c["alerts"]["alerts"][0] for c in contents]),
        "network": bodies.network(*[c["network"]["connections"][0] for c in contents]),
        "inventory": bodies.inventory(*[c["inventory"]["apps"][0] for c in contents]),
    }


def only_polls(backend):
    return {r.target for r in backend.seen()} == {f"/api/{e}" for e in ENDPOINTS}


def expected(text):
    return {
        "Network": ("Network connections", f"{text}:{text}, → {text}:{text}, {text}"),
        "Inventory": ("Installed applications", f"{text}, v{text}"),
        "Alerts": ("Security alerts", f"{text}: {text}, {text}"),
    }


def test_every_row_shows_it_unchanged(launch, backend):
    panel = launch(merged([everywhere(text) for text in HOSTILE]))
    panel.resize(1000, 1150)
    for tab in ("Network", "Inventory", "Alerts"):
        panel.show(tab)
        name = expected("")[tab][0]
        panel.tree.wait_for("list", name)
        assert read_through(panel, name) == [expected(text)[tab][1] for text in HOSTILE]
    backend.wait_for_poll()
    assert only_polls(backend)


def test_a_million_characters_in_every_field(launch, backend):
    panel = launch(everywhere(LONG))
    shown = LONG[:16_000] + "…"
    panel.tree.wait_for("text", shown.upper())
    for tab, (_, row) in expected(shown).items():
        panel.show(tab)
        panel.tree.wait_for("row", row)
    # The window is no wider, and its controls are still inside it.
    window = panel.window.box
    assert (window.width, window.height) == (1000, 700)
    for item in panel.tree.read().every("tab") + panel.tree.read().every("button"):
        assert window.holds(item.box)
    assert only_polls(backend)


def test_characters_that_end_strings_elsewhere(launch, backend):
    panel = launch(everywhere("a\0b\u001b[31m\u0007"))
    panel.tree.wait_for("text", "Installed Applications")
    for tab, (name, _) in expected("").items():
        panel.show(tab)
        panel.tree.wait_for("list", name)
        assert len(listed(panel, name)[1]) == 1
