// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtTest
import Quillmark.Controls
import Quillmark.Views
import "../support/qml"

ViewTest {
    name: "TabButton"

    function button(isActive) {
        return make(component, { title: "Network", icon: "network", isActive: isActive });
    }

    /// The padded row of icon and title.
    function rowOf(view) {
        return labelOf(view, "Network").parent;
    }

    function underlinesOf(view) {
        return itemsOfType(view, "Box");
    }

    function test_content_data() {
        return [
            { tag: "active", isActive: true, color: Theme.blue },
            { tag: "inactive", isActive: false, color: Theme.gray }
        ];
    }

    function test_content(data) {
        const view = button(data.isActive);
        const icon = itemOfType(view, "SymbolIcon");
        const title = labelOf(view, "Network");
        compare(icon.name, "network");
        compare(icon.size, 14);
        compareColor(icon.color, data.color);
        compareLabel(title, 13, Font.DemiBold, data.color);
        compare(roomBeside(icon, title), 6);
        compareMiddleHeight(icon, title);
    }

    function test_padding_data() {
        return [{ tag: "active", isActive: true }, { tag: "inactive", isActive: false }];
    }

    function test_padding(data) {
        const view = button(data.isActive);
        const box = boxIn(rowOf(view), view);
        compare(box.x, 16);
        compare(view.width - box.right, 16);
        compare(box.y, 10);
        compare(view.height - box.bottom, data.isActive ? 10 + 4 + 3 : 10);
    }

    function test_underline() {
        const view = button(true);
        const bars = underlinesOf(view);
        compare(bars.length, 1);
        compare(bars[0].height, 3);
        compare(bars[0].radius, 2);
        compare(boxIn(bars[0], view).x, 0);
        compare(bars[0].width, view.width);
        compare(bars[0].width, rowOf(view).width + 2 * 16);
        compareColor(bars[0].color, Theme.blue);
    }

    function test_noUnderlineWhenInactive() {
        compare(underlinesOf(button(false)).length, 0);
    }

    function test_inactiveIsLowerByBarAndSpacing() {
        compare(button(true).height - button(false).height, 7);
    }

    function test_followsItsState() {
        const view = button(false);
        const height = view.height;
        view.isActive = true;
        compare(underlinesOf(view).length, 1);
        tryCompare(view, "height", height + 7, patience);
        view.isActive = false;
        compare(underlinesOf(view).length, 0);
        tryCompare(view, "height", height, patience);
    }

    function test_accessible() {
        const view = button(true);
        compare(view.Accessible.role, Accessible.PageTab);
        compare(view.Accessible.name, "Network");
        verify(view.Accessible.selected);
        view.isActive = false;
        verify(!view.Accessible.selected);
    }

    Component {
        id: component

        TabButton {}
    }
}
