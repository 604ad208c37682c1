// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtTest
import Quillmark.Controls
import "../support/qml"

ViewTest {
    name: "PlainList"

    readonly property int rowHeight: 30

    function list(count) {
        const view = make(component, { width: 400, height: 300, model: count });
        view.forceActiveFocus(Qt.TabFocusReason);
        return view;
    }

    /// The `contentY` of a list that is scrolled to its end.
    function endOf(view) {
        return view.originY + view.contentHeight - view.height;
    }

    function test_rowsAreWhiteWithALineBetween() {
        const view = list(3);
        const row = view.itemAtIndex(1);
        const inset = Theme.listRowInset;
        compare(row.width, 400);
        compare(row.height, rowHeight + 2 * inset);
        const line = itemsOfType(row, "Rectangle").filter(item => item.height === 1)[0];
        // Except for a fraction of a pixel, which decides how it is rounded.
        fuzzyCompare(boxIn(line, row).bottom, row.height, 0.25);
        compareColor(line.color, Theme.separator);
        const content = itemsOfType(row, "Rectangle").filter(item => item.height === rowHeight)[0];
        compare(boxIn(content, row), Qt.rect(Theme.listInset, inset, 400 - 2 * Theme.listInset, rowHeight));
        const ground = grabImage(view);
        compareColor(ground.pixel(200, 290), Theme.listBackground);
    }

    function test_rowsHaveNoGaps() {
        const view = list(3);
        compare(roomBelow(view.itemAtIndex(0), view.itemAtIndex(1)), 0);
        compare(view.contentHeight, 3 * view.itemAtIndex(0).height);
    }

    function test_keysScroll_data() {
        return [
            { tag: "Down", key: Qt.Key_Down, from: 0, to: 40 },
            { tag: "Up", key: Qt.Key_Up, from: 100, to: 60 },
            { tag: "Up at the top", key: Qt.Key_Up, from: 10, to: 0 },
            { tag: "Page Down", key: Qt.Key_PageDown, from: 0, to: 260 },
            { tag: "Page Up", key: Qt.Key_PageUp, from: 500, to: 240 },
            { tag: "Home", key: Qt.Key_Home, from: 500, to: 0 },
            { tag: "a letter", key: Qt.Key_A, from: 500, to: 500 }
        ];
    }

    function test_keysScroll(data) {
        const view = list(1000);
        view.contentY = data.from;
        keyClick(data.key);
        compare(view.contentY, data.to);
    }

    function test_endShowsTheLastRow() {
        const view = list(100000);
        keyClick(Qt.Key_End);
        verify(view.itemAtIndex(99999));
        compare(view.contentY, endOf(view));
        keyClick(Qt.Key_Down);
        compare(view.contentY, endOf(view));
        keyClick(Qt.Key_Home);
        verify(view.itemAtIndex(0));
        compare(view.contentY, view.originY);
    }

    function test_keysDoNotScrollAShortList() {
        const view = list(2);
        for (const key of [Qt.Key_Down, Qt.Key_PageDown, Qt.Key_End, Qt.Key_Up, Qt.Key_Home]) {
            keyClick(key);
            compare(view.contentY, 0);
        }
    }

    function test_wheelScrolls() {
        const view = list(1000);
        mouseWheel(view, 200, 150, 0, -120);
        tryVerify(() => view.contentY > 0, patience);
    }

    function test_dragScrolls() {
        const view = list(1000);
        mouseDrag(view, 200, 250, 0, -200);
        tryVerify(() => view.contentY > 0, patience);
    }

    function test_barCanBeDragged() {
        const view = list(1000);
        const bar = itemOfType(view, "ScrollBar");
        compare(boxIn(bar, view).right, view.width);
        mouseDrag(bar, bar.width / 2, 5, 0, 150);
        tryVerify(() => view.contentY > 10000, patience);
    }

    function test_noBarWhenAllFits() {
        compare(itemsOfType(list(2), "ScrollBar"), []);
    }

    function test_nothingIsSelected() {
        const view = list(10);
        mouseClick(view.itemAtIndex(2));
        keyClick(Qt.Key_Down);
        compare(view.currentIndex, -1);
        verify(!view.highlightItem);
    }

    function test_clickTakesTheFocusWithoutARing() {
        const view = make(component, { width: 400, height: 300, model: 1000 });
        mouseClick(view, 100, 100);
        verify(view.activeFocus);
        compare(itemsOfType(view, "FocusRing").length, 0);
        keyClick(Qt.Key_PageDown);
        compare(view.contentY, 260);
    }

    function test_assistiveTechnologyScrolls_data() {
        return [
            { tag: "down", action: "scrollDownAction", from: 100, to: 140 },
            { tag: "up", action: "scrollUpAction", from: 100, to: 60 },
            { tag: "next page", action: "nextPageAction", from: 100, to: 360 },
            { tag: "previous page", action: "previousPageAction", from: 300, to: 40 }
        ];
    }

    function test_assistiveTechnologyScrolls(data) {
        const view = list(1000);
        view.contentY = data.from;
        view.Accessible[data.action]();
        compare(view.contentY, data.to);
    }

    function test_focusIsVisible() {
        const view = list(3);
        compare(itemsOfType(view, "FocusRing").length, 1);
        view.focus = false;
        compare(itemsOfType(view, "FocusRing"), []);
    }

    function test_accessible() {
        const view = list(3);
        compare(view.Accessible.role, Accessible.List);
        compare(view.Accessible.name, "Rows");
        compare(view.itemAtIndex(1).Accessible.role, Accessible.ListItem);
        compare(view.itemAtIndex(1).Accessible.name, "row 1");
    }

    Component {
        id: component

        PlainList {
            label: "Rows"
            delegate: PlainListRow {
                required property int index

                label: "row " + index

                Rectangle {
                    width: parent.width
                    height: rowHeight
                }
            }
        }
    }
}
