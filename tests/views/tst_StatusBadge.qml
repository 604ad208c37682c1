// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views
import "../support/qml"

ViewTest {
    name: "StatusBadge"

    function badge(isHealthy) {
        return make(component, { title: "Status", value: "OK", isHealthy: isHealthy });
    }

    function dotOf(view) {
        return itemOfType(view, "Box");
    }

    function accessibleItemOf(view) {
        return view.children[0];
    }

    function test_texts() {
        const view = badge(true);
        compare(textsIn(view), ["Status", "OK"]);
        compareLabel(labelOf(view, "Status"), 11, Font.Normal, Theme.gray);
        compareLabel(labelOf(view, "OK"), 14, Font.DemiBold, Theme.black);
    }

    function test_layout() {
        const view = badge(true);
        const title = labelOf(view, "Status");
        const value = labelOf(view, "OK");
        const dot = dotOf(view);
        compare(boxIn(title, view).x, 0);
        compare(boxIn(dot, view).x, 0);
        compare(roomBeside(dot, value), 6);
        compare(view.height, title.height + 4 + value.height);
        compareMiddleHeight(dot, value);
    }

    function test_dot_data() {
        return [
            { tag: "healthy", isHealthy: true, color: Theme.green },
            { tag: "not healthy", isHealthy: false, color: Theme.red }
        ];
    }

    function test_dot(data) {
        const dot = dotOf(badge(data.isHealthy));
        compare(dot.width, 8);
        compare(dot.height, 8);
        compare(dot.radius, 4);
        compareColor(dot.color, data.color);
    }

    function test_accessible_data() {
        return [
            { tag: "healthy", isHealthy: true, description: "Healthy" },
            { tag: "not healthy", isHealthy: false, description: "Needs attention" }
        ];
    }

    // Users who cannot see the dot's colour need its meaning as text.
    function test_accessible(data) {
        const view = badge(data.isHealthy);
        const item = accessibleItemOf(view);
        compare(item.Accessible.name, "Status: OK");
        compare(item.Accessible.description, data.description);
        verify(item.activeFocusOnTab);
        view.value = "OFFLINE";
        compare(item.Accessible.name, "Status: OFFLINE");
    }

    function test_keyboardReachesIt() {
        const view = badge(true);
        compare(itemsOfType(view, "FocusRing").length, 0);
        keyClick(Qt.Key_Tab);
        verify(accessibleItemOf(view).activeFocus);
        const ring = boxIn(itemOfType(view, "FocusRing"), view);
        compare(ring.left, -5);
        compare(ring.right, view.width + 5);
    }

    Component {
        id: component

        StatusBadge {}
    }
}
