// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtTest
import Quillmark.Controls
import "../support/qml"

PlainListTest {
    name: "PlainList"

    function test_rowsAreWhiteWithALineBetween() {
        const view = list(3);
        const row = view.itemAtIndex(1);
        const inset = Theme.listRowInset;
        compare(row.width, 400);
        compare(row.height, rowHeight + 2 * inset);
        const line = itemsOfType(row, "Box")[0];
        // Except for a fraction of a pixel, which decides how it is rounded.
        compare(line.height, 1);
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

    function test_nothingIsHighlighted() {
        const view = list(10);
        mouseClick(view.itemAtIndex(2));
        keyClick(Qt.Key_Down);
        compare(view.currentIndex, 3);
        compare(itemsOfType(view, "FocusRing").length, 1);
        // ListView's own highlight would be one more item.
        compare(view.highlightFollowsCurrentItem, false);
        compare(view.highlight, null);
    }

    function test_clickOnACutRowDoesNotScroll() {
        const view = list(1000);
        view.contentY = 20;
        mouseClick(view, 100, 5);
        compare(view.currentIndex, 0);
        compare(view.contentY, 20);
        mouseClick(view, 100, 298);
        verify(view.currentIndex > 6);
        compare(view.contentY, 20);
    }

    function test_copy_data() {
        return [{ tag: "key" }, { tag: "menu key" }, { tag: "right click" }];
    }

    function test_copy(data) {
        const view = list(1000);
        copied.target = view;
        copied.clear();
        keyClick(Qt.Key_Down);
        if (data.tag === "key") {
            keyClick(Qt.Key_C, Qt.ControlModifier);
        } else {
            if (data.tag === "menu key")
                keyClick(Qt.Key_Menu);
            else
                mouseClick(view.itemAtIndex(1), 50, 10, Qt.RightButton);
            const entry = itemsOfType(view, "Pressable")[0];
            verify(entry.activeFocus);
            compare(entry.Accessible.role, Accessible.MenuItem);
            // Keys of the list do not reach it.
            keyClick(Qt.Key_Down);
            keyClick(Qt.Key_Return);
            tryVerify(() => itemsOfType(view, "Pressable").length === 0, patience);
        }
        compare(copied.count, 1);
        compare(readRow(view), 1);
        paste.text = "";
        paste.paste();
        compare(paste.text, "row 1");
    }

    function test_menuCloses_data() {
        return [{ tag: "Escape" }, { tag: "click" }];
    }

    function test_menuCloses(data) {
        const view = list(10);
        keyClick(Qt.Key_Menu);
        compare(itemsOfType(view, "Pressable").length, 1);
        if (data.tag === "Escape")
            keyClick(Qt.Key_Escape);
        else
            mouseClick(view, 300, 250);
        tryVerify(() => itemsOfType(view, "Pressable").length === 0, patience);
        compare(readRow(view), 0);
    }

    function test_clickTakesTheFocusWithoutARing() {
        const view = make(component, { width: 400, height: 300, model: 1000 });
        mouseClick(view, 100, 100);
        verify(view.activeFocus);
        compare(itemsOfType(view, "FocusRing").length, 0);
        keyClick(Qt.Key_PageDown);
        compare(view.contentY, 260);
        // From now on the keyboard is used.
        compare(itemsOfType(view, "FocusRing").length, 1);
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
        const row = view.itemAtIndex(1);
        compare(row.Accessible.name, "row 1");
        compare(row.Accessible.description, "2 of 3");
        verify(!row.activeFocus);
        keyClick(Qt.Key_Down);
        verify(row.activeFocus);
    }

    function test_saysTheNumberOfRowsAtTheLastClick_data() {
        return [{ tag: "left", button: Qt.LeftButton }, { tag: "right", button: Qt.RightButton }];
    }

    function test_saysTheNumberOfRowsAtTheLastClick(data) {
        rows.clear();
        rows.append([{ text: "row" }, { text: "row" }]);
        const view = make(component, { width: 400, height: 300, model: rows });
        view.forceActiveFocus(Qt.TabFocusReason);
        rows.append({ text: "row" });
        compare(view.itemAtIndex(1).Accessible.description, "2 of 2");
        mouseClick(view.itemAtIndex(1), 50, 10, data.button);
        compare(view.itemAtIndex(1).Accessible.description, "2 of 3");
    }

    function test_tabKeyLeavesTheList() {
        const view = list(3);
        keyClick(Qt.Key_Down);
        const row = view.currentItem;
        verify(row.activeFocus);
        verify(!view.activeFocusOnTab);
        // The list itself would give the focus back to the row.
        verify(row.nextItemInFocusChain(false) !== view);
    }

    ListModel {
        id: rows
    }

    SignalSpy {
        id: copied

        signalName: "copied"
    }

    TextInput {
        id: paste
    }
}
