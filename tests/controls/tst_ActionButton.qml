// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import "../support/qml"

ViewTest {
    name: "ActionButton"

    function button(properties) {
        return make(component, Object.assign({ width: 300, icon: "gear", text: "Do it", background: Theme.blue }, properties));
    }

    function test_content() {
        const view = button();
        compareIcon(itemOfType(view, "SymbolIcon"), "gear", 12, Theme.white);
        compareLabel(labelOf(view, "Do it"), 12, Font.DemiBold, Theme.white);
    }

    function test_contentIsARowInTheMiddle() {
        const view = button();
        const icon = itemOfType(view, "SymbolIcon");
        const label = labelOf(view, "Do it");
        compare(roomBeside(icon, label), Theme.spacing);
        compareMiddleHeight(icon, label);
        const left = boxIn(icon, view).x;
        const right = view.width - boxIn(label, view).right;
        verify(Math.abs(left - right) <= 1, left + " and " + right);
    }

    function test_padding_data() {
        return [{ tag: "8", padding: 8 }, { tag: "10", padding: 10 }];
    }

    function test_padding(data) {
        const view = button({ padding: data.padding });
        const content = labelOf(view, "Do it").parent;
        compare(view.height, content.height + 2 * data.padding);
        compare(boxIn(content, view).y, data.padding);
    }

    function test_background() {
        const view = button({ background: Theme.green });
        const ground = itemOfType(view, "Box");
        compareColor(ground.color, Theme.green);
        compare(ground.radius, 6);
        compare(ground.borderWidth, 0);
        compare(boxIn(ground, view), Qt.rect(0, 0, view.width, view.height));
    }

    Component {
        id: component

        ActionButton {}
    }
}
