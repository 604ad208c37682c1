// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import "../support/qml"

ViewTest {
    name: "EmptyState"

    function state() {
        return make(component, { width: 600, height: 401, icon: "network", iconColor: Theme.green, text: "Nothing here" });
    }

    function test_content() {
        const view = state();
        const icon = itemOfType(view, "SymbolIcon");
        compare(icon.name, "network");
        compare(icon.size, 40);
        compareColor(icon.color, Theme.green);
        compareLabel(labelOf(view, "Nothing here"), Theme.bodySize, Font.Normal, Theme.gray);
    }

    function test_layout() {
        const view = state();
        const icon = itemOfType(view, "SymbolIcon");
        const label = labelOf(view, "Nothing here");
        compare(roomBelow(icon, label), 20);
        for (const item of [icon, label])
            verify(Math.abs(boxIn(item, view).x + item.width / 2 - view.width / 2) <= 0.5);
        compareMiddleHeight(icon.parent, view);
    }

    function test_ground() {
        compareColor(state().color, Theme.panelTint);
    }

    Component {
        id: component

        EmptyState {}
    }
}
