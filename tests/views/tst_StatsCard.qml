// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views
import "../support/qml"

ViewTest {
    name: "StatsCard"

    function card() {
        return make(component, { x: 20, y: 20, width: 400, title: "Recent Alerts", value: "1234" });
    }

    function groundOf(view) {
        return itemOfType(view, "Box");
    }

    function test_texts() {
        const view = card();
        compare(textsIn(view), ["Recent Alerts", "1234"]);
        compareLabel(labelOf(view, "Recent Alerts"), 13, Font.Normal, Theme.gray);
        compareLabel(labelOf(view, "1234"), 32, Font.Bold, Theme.blue);
    }

    function test_layout() {
        const view = card();
        const title = labelOf(view, "Recent Alerts");
        const value = labelOf(view, "1234");
        compare(boxIn(title, view).x, 16);
        compare(boxIn(value, view).x, 16);
        compare(boxIn(title, view).y, 16);
        compare(roomBelow(title, value), 8);
        compare(view.height, 16 + title.height + 8 + value.height + 16);
    }

    function test_ground() {
        const ground = groundOf(card());
        compareColor(ground.color, Theme.white);
        compare(ground.radius, 8);
        compare(boxIn(ground, ground.parent), Qt.rect(0, 0, ground.parent.width, ground.parent.height));
    }

    function test_hasTheSoftShadow() {
        const view = card();
        const shadow = itemOfType(view, "SoftShadow");
        compare(shadow.radius, 8);
        compare(boxIn(shadow, view), Qt.rect(0, 0, view.width, view.height));
    }

    function test_accessible() {
        const view = card();
        const item = labelOf(view, "Recent Alerts").parent.parent;
        compare(item.Accessible.name, "Recent Alerts: 1234");
        item.forceActiveFocus(Qt.TabFocusReason);
        verify(item.activeFocus);
        compare(itemsOfType(view, "FocusRing").length, 1);
    }

    Component {
        id: component

        StatsCard {}
    }
}
