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
        const line = itemsOfType(row, "Box")[0];
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

    /// The row with the keyboard focus, after a check that all of it is in view.
    function readRow(view) {
        const row = view.currentItem;
        verify(row.activeFocus);
        const box = boxIn(row, view);
        verify(box.y >= -1 && box.bottom <= view.height + 1, "in view: " + box);
        return row.index;
    }

    function test_keysMoveTheReadingPosition_data() {
        return [
            { tag: "Down", key: Qt.Key_Down, from: 0, to: 1 },
            { tag: "Down from the last row in view", key: Qt.Key_Down, from: 6, to: 7 },
            { tag: "Down at the end", key: Qt.Key_Down, from: 999, to: 999 },
            { tag: "Up", key: Qt.Key_Up, from: 100, to: 99 },
            { tag: "Up at the top", key: Qt.Key_Up, from: 0, to: 0 },
            { tag: "Page Up to the top", key: Qt.Key_PageUp, from: 3, to: 0 },
            { tag: "Page Down to the end", key: Qt.Key_PageDown, from: 998, to: 999 },
            { tag: "Home", key: Qt.Key_Home, from: 500, to: 0 },
            { tag: "End", key: Qt.Key_End, from: 500, to: 999 },
            { tag: "a letter", key: Qt.Key_A, from: 500, to: 500 }
        ];
    }

    function test_keysMoveTheReadingPosition(data) {
        const view = list(1000);
        view.currentIndex = data.from;
        view.positionViewAtIndex(data.from, ListView.Contain);
        keyClick(data.key);
        compare(readRow(view), data.to);
    }

    function test_pageKeysScrollByAPage() {
        const view = list(1000);
        keyClick(Qt.Key_PageDown);
        compare(view.contentY, 260);
        const row = readRow(view);
        verify(row >= 6, row);
        keyClick(Qt.Key_PageDown);
        verify(readRow(view) > row);
        keyClick(Qt.Key_PageUp);
        keyClick(Qt.Key_PageUp);
        compare(readRow(view), 0);
    }

    function test_downBeginsWhereThePointerHasScrolledTo() {
        const view = list(1000);
        view.contentY = 100 * view.currentItem.height;
        keyClick(Qt.Key_Down);
        compare(readRow(view), 100);
        view.contentY = 200 * view.currentItem.height;
        keyClick(Qt.Key_Up);
        verify(readRow(view) >= 200);
    }

    function test_aRowHigherThanTheListIsReadByLines() {
        const view = make(component, { width: 400, height: 300, model: 3, rowHeight: 500 });
        view.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Down);
        compare(view.currentIndex, 0);
        compare(view.contentY, 40);
        for (let i = 0; i < 6; ++i)
            keyClick(Qt.Key_Down);
        compare(view.currentIndex, 1);
        compare(boxIn(view.currentItem, view).y, 0);
    }

    function test_endShowsTheLastRow() {
        const view = list(100000);
        keyClick(Qt.Key_End);
        compare(readRow(view), 99999);
        compare(view.contentY, endOf(view));
        keyClick(Qt.Key_Down);
        compare(view.contentY, endOf(view));
        keyClick(Qt.Key_Home);
        compare(readRow(view), 0);
        compare(view.contentY, view.originY);
    }

    function test_changesOfTheModelDoNotScrollToTheReadingPosition() {
        rows.clear();
        for (let i = 0; i < 200; ++i)
            rows.append({ text: "row" });
        const view = make(component, { width: 400, height: 300, model: rows });
        view.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Down);
        view.contentY = 1000;
        for (let i = 0; i < 3; ++i) {
            rows.append({ text: "row" });
            view.forceLayout();
            compare(view.contentY, 1000);
            rows.remove(rows.count - 2, 2);
            view.forceLayout();
            compare(view.contentY, 1000);
        }
        compare(view.currentIndex, 1);
        verify(view.currentItem.activeFocus);
    }

    function test_whenItsRowGoesTheLastOneIsRead() {
        rows.clear();
        for (let i = 0; i < 5; ++i)
            rows.append({ text: "row" });
        const view = make(component, { width: 400, height: 300, model: rows });
        view.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_End);
        rows.remove(2, 3);
        view.forceLayout();
        compare(readRow(view), 1);
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

    Component {
        id: component

        PlainList {
            property int rowHeight: 30

            label: "Rows"
            delegate: PlainListRow {
                label: "row " + index

                Rectangle {
                    width: parent.width
                    height: rowHeight
                }
            }
        }
    }
}
