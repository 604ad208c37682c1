// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views

/// Polls do not move a list that was scrolled.
PolledViewTest {
    name: "ScrollPosition"

    readonly property int many: 10000

    function answerRows(count, state) {
        backend.answer("/api/network", backend.connectionsBody(count, state));
    }

    /// A tab with many rows, the list scrolled to this one.
    function listAt(row) {
        answerRows(many, "LISTEN");
        poll();
        const list = itemOfType(make(component, { width: 800, height: 600, viewModel: viewModel }), "PlainList");
        list.positionViewAtIndex(row, ListView.Beginning);
        settle(list);
        return list;
    }

    /// The row at the top of the list, and its position.
    function placeOf(list) {
        const row = list.indexAt(10, list.contentY + 1);
        return { contentY: list.contentY, row: row, y: list.itemAtIndex(row).y };
    }

    function firstTextOf(list) {
        return textsIn(list.itemAtIndex(placeOf(list).row))[0];
    }

    function pollAndSettle(list) {
        poll();
        list.forceLayout();
        settle(list);
    }

    function test_staysInTheMiddleOverTenPolls() {
        const list = listAt(5000);
        const place = placeOf(list);
        compare(place.row, 5000);
        for (let i = 0; i < 10; ++i) {
            pollAndSettle(list);
            compare(placeOf(list), place);
        }
        compare(firstTextOf(list), "127.0.0.1:5000");
    }

    function test_staysWhenRowsChange() {
        const list = listAt(5000);
        const place = placeOf(list);
        for (let i = 0; i < 10; ++i) {
            answerRows(many, "STATE " + i);
            pollAndSettle(list);
            compare(placeOf(list), place);
            compare(textsIn(list.itemAtIndex(5000))[2], "STATE " + i);
        }
    }

    function test_staysWhenRowsComeAndGo() {
        const list = listAt(5000);
        const place = placeOf(list);
        for (const count of [9000, 12000, 6000, 10001, 9999, 20000]) {
            answerRows(count, "LISTEN");
            pollAndSettle(list);
            compare(list.count, count);
            compare(placeOf(list), place);
        }
    }

    function test_staysHalfwayThroughARow() {
        const list = listAt(5000);
        list.contentY += 17;
        const place = placeOf(list);
        answerRows(11000, "ESTABLISHED");
        pollAndSettle(list);
        compare(placeOf(list), place);
    }

    function test_staysAtTheTop() {
        const list = listAt(0);
        answerRows(11000, "ESTABLISHED");
        pollAndSettle(list);
        verify(list.atYBeginning);
        compare(placeOf(list).row, 0);
    }

    function test_goesToTheEndWhenTheRowsInViewAreGone_data() {
        return [
            { tag: "and many rows above them", left: 100 },
            { tag: "and no row above them", left: 5000 }
        ];
    }

    // The old place no longer exists; the end is the nearest.
    function test_goesToTheEndWhenTheRowsInViewAreGone(data) {
        const list = listAt(5000);
        answerRows(data.left, "LISTEN");
        pollAndSettle(list);
        tryVerify(() => list.atYEnd, patience);
        const last = list.itemAtIndex(data.left - 1);
        verify(last, "the last row is in view");
        compare(textsIn(last)[0], "127.0.0.1:" + (data.left - 1));
        verify(boxIn(last, list).bottom >= list.height - 1);
    }

    Component {
        id: component

        NetworkTabView {}
    }
}
