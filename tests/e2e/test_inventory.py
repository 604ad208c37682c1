# SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""The Inventory tab."""

import pytest

from harness import bodies, colours, hands
from harness.exchange import answer
from harness.lists import listed, read_through
from harness.screen import Picture
from harness.waiting import until

pytestmark = pytest.mark.usefixtures("token")

LIST = "Installed applications"


def content(panel):
    tree = panel.tree.read()
    bar = tree.every("tab list")[0].box
    # The page itself is always there; a blank one has nothing in it.
    return [i for i in tree.walk() if i.role not in ("window", "application")
            and i.box.y >= bar.bottom and (i.role, i.name) != ("group", "Inventory")]


def test_blank_without_an_inventory(launch, backend):
    panel = launch({"inventory": answer(b"null")})
    panel.show("Inventory")
    panel.tree.wait_for("text", "OK")
    assert content(panel) == []


def test_loading_label_for_an_empty_inventory(launch):
    panel = launch({"inventory": bodies.inventory(
        services=["cron"], interfaces=["lo"], permissions=["cap_net_admin"])})
    panel.show("Inventory")
    hands.park()
    label = panel.tree.wait_for("text", "Loading applications...")
    assert [i.name for i in content(panel)] == ["Loading applications..."]
    assert Picture().ink(label.box, colours.GRAY) > 0.65


def test_first_fifty_in_the_order_received(launch):
    apps = [bodies.app(f"App {(i * 37) % 80}", publisher="Somebody", path="/opt/x")
            for i in range(80)]
    panel = launch({"inventory": bodies.inventory(*apps)})
    panel.show("Inventory")
    panel.tree.wait_for("list", LIST)
    assert read_through(panel, LIST) == [app["name"] for app in apps[:50]]
    assert not any(word in panel.tree.read().dump() for word in ("Somebody", "/opt"))


def test_rows(launch, backend):
    panel = launch({"inventory": bodies.inventory(
        bodies.app("Files", version="2.4.1"), bodies.app("Terminal", version=None),
        bodies.app("Editor", version=""))})
    panel.show("Inventory")
    panel.tree.wait_for("list", LIST)
    hands.park()
    _, rows = listed(panel, LIST)
    assert [r.name for r in rows] == ["Files, v2.4.1", "Terminal", "Editor, v"]
    assert [[t.name for t in r.every("text")] for r in rows] == [
        ["Files", "v2.4.1"], ["Terminal"], ["Editor", "v"]]
    assert rows[0].box.height == rows[2].box.height > rows[1].box.height

    picture = Picture()
    name, version = rows[0].every("text")
    assert name.box.x == version.box.x and name.box.bottom <= version.box.y
    assert picture.ink(name.box, colours.BLACK) > 0.65
    assert picture.ink(version.box, colours.GRAY) > 0.65

    # Without the agent the tab is blank again; it does not keep the last list.
    backend.stop()
    until(lambda: content(panel) == [], "a blank tab")
    backend.start()
