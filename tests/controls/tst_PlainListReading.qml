// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtTest
import Quillmark.Controls
import "../support/qml"

PlainListTest {
    name: "PlainListReading"

    /// The `contentY` of a list that is scrolled to its end.
    function endOf(view) {
        return view.originY + view.contentHeight - view.height;
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

    ListModel {
        id: rows
    }
}
