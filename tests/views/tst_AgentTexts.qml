// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Tests
import Quillmark.Views
import "../support/qml"

/// Every text of the agent is painted completely; only the header stops at three lines.
ViewTest {
    name: "AgentTexts"

    readonly property int most: 16000
    readonly property int headerLines: 3

    readonly property var texts: ({
        "empty": "",
        "short": "text",
        "two lines": "one\ntwo",
        "line break at the end": "one\n",
        "many words": "many words ".repeat(100),
        "one word": "X".repeat(1000),
        "right to left": "שלום עולם ".repeat(100),
        "longest": "0123456789abcdef".repeat(most / 16)
    })

    function rows(text) {
        return [
            make(alertRow, { width: 600, alert: Sample.alert("high", text, text) }),
            make(appRow, { width: 600, app: Sample.app(text, text) }),
            make(connectionRow, { width: 600, connection: Sample.connection(text, text, text) })
        ];
    }

    /// No part of these labels is cut off, hidden under another one or outside `view`.
    function verifyPaintedCompletely(labels, view) {
        const boxes = labels.map(label => boxIn(label, view));
        labels.forEach((label, i) => {
            verify(!label.truncated, "complete: " + label.text.slice(0, 20));
            // Qt breaks words with an accuracy of one pixel.
            verify(label.contentWidth < label.width + 1 && label.contentHeight <= label.height);
            verify(boxes[i].left >= 0 && boxes[i].right <= view.width);
            verify(boxes[i].top >= 0 && boxes[i].bottom <= view.height);
            for (const other of boxes.slice(0, i))
                verify(other.bottom <= boxes[i].top || other.right <= boxes[i].left, "none overlaps another");
        });
    }

    /// The first and last painted column in `box`, in an image of a view on a plain background.
    function inkIn(image, box) {
        let found = { left: Infinity, right: -Infinity };
        for (let y = Math.ceil(box.top); y < Math.floor(box.bottom); ++y) {
            for (let x = Math.ceil(box.left); x < Math.floor(box.right); ++x) {
                if (!Qt.colorEqual(image.pixel(x, y), image.pixel(0, 0))) {
                    found.left = Math.min(found.left, x);
                    found.right = Math.max(found.right, x);
                }
            }
        }
        return found;
    }

    /// The box of one line of a label.
    function lineBox(label, line, view) {
        const box = boxIn(label, view);
        const height = label.contentHeight / label.lineCount;
        return Qt.rect(box.x, box.y + line * height, box.width, height);
    }

    function test_rows_data() {
        return Object.keys(texts).map(tag => ({ tag: tag, text: texts[tag] }));
    }

    function test_rows(data) {
        const text = data.text;
        const shown = [[text, text], [text, "v" + text], [text + ":" + text, "→ " + text + ":" + text, text]];
        rows(text).forEach((row, i) => {
            compare(textsIn(row), shown[i]);
            verifyPaintedCompletely(labelsIn(row), row);
        });
    }

    // No width causes a warning.
    function test_everyWidth_data() {
        return test_rows_data();
    }

    function test_everyWidth(data) {
        // The longest text takes much longer than all others together.
        const step = data.tag === "longest" ? 186.7 : 33.3;
        for (const row of rows(data.text)) {
            for (row.width = 960; row.width > 400; row.width -= step) {
                settle(row);
                verifyPaintedCompletely(labelsIn(row), row);
            }
        }
        const view = make(header, { width: 900, status: Sample.status(data.text, 3, data.text) });
        for (view.width = 1500; view.width > 900; view.width -= step) {
            settle(view);
            verify(labelsIn(view).every(label => boxIn(label, view).right <= view.width));
        }
    }

    function test_linesOfRows() {
        const lines = rows("one\ntwo").map(row => labelsIn(row).map(label => label.lineCount));
        compare(lines, [[2, 2], [2, 2], [3, 3, 2]]);
    }

    function test_lastLinesOfRowsArePainted() {
        for (const row of rows("one\ntwo")) {
            const image = grabImage(row);
            for (const label of labelsIn(row)) {
                const ink = inkIn(image, lineBox(label, label.lineCount - 1, row));
                verify(ink.right > ink.left, label.text);
            }
        }
    }

    function test_onlyTheBeginningOfATextThatIsTooLong() {
        const beginning = texts["longest"] + "…";
        for (const row of rows(texts["longest"] + "X")) {
            for (const label of labelsIn(row))
                compare(label.text.split(beginning).join("").replace(/^(v|→ )?:?$/, ""), "");
            verifyPaintedCompletely(labelsIn(row), row);
        }
    }

    function test_header_data() {
        return test_rows_data();
    }

    // At the minimum width of the window.
    function test_header(data) {
        const view = make(header, { width: 1000 - 2 * 20, status: Sample.status(data.text, -1234567890, data.text) });
        const lastScan = labelsIn(view).pop();
        const status = labelsIn(view)[3];
        compare([status.text, lastScan.text], [data.text.toUpperCase(), data.text]);
        for (const label of [status, lastScan]) {
            verify(label.lineCount <= headerLines);
            compare(label.truncated, label.lineCount === headerLines, "truncated only where there is no more room");
        }
        verifyPaintedCompletely(labelsIn(view).filter(label => !label.truncated), view);
        verify(boxIn(lastScan, view).left >= boxIn(itemsOfType(view, "StatusBadge")[1], view).right, "none overlaps another");
        verify(boxIn(lastScan, view).bottom <= view.height);
    }

    function test_headerShowsThatTextIsCutOff() {
        const view = make(header, { width: 960, status: Sample.status("ok", 0, "a\nb\nc\nd") });
        const other = make(header, { width: 960, status: Sample.status("ok", 0, "a\nb\nc") });
        const [cut, whole] = [view, other].map(one => labelsIn(one).pop());
        compare([cut.lineCount, cut.truncated], [3, true]);
        compare([whole.lineCount, whole.truncated], [3, false]);
        const [cutInk, wholeInk] = [[cut, view], [whole, other]].map(
            ([label, shown]) => inkIn(grabImage(shown), lineBox(label, 2, shown)));
        verify(cutInk.right - cutInk.left > wholeInk.right - wholeInk.left, "an ellipsis is painted");
    }

    function test_headerUsesTheAvailableRoom_data() {
        const wide = "X".repeat(50);
        return [{ tag: "status", status: wide, lastScan: "yesterday" }, { tag: "last scan", status: "ok", lastScan: wide }];
    }

    function test_headerUsesTheAvailableRoom(data) {
        const view = make(header, { width: 960, status: Sample.status(data.status, 0, data.lastScan) });
        for (const label of labelsIn(view))
            compare(label.lineCount, 1, label.text);
    }

    function test_linesAtTheRightAreAlignedRight_data() {
        const text = "wide line of text\nend";
        return [
            { tag: "last scan", component: header, properties: { width: 960, status: Sample.status("ok", 0, text) } },
            { tag: "state", component: connectionRow, properties: { width: 960, connection: Sample.connection("a", "1", text) } }
        ];
    }

    function test_linesAtTheRightAreAlignedRight(data) {
        const view = make(data.component, data.properties);
        const label = labelsIn(view).pop();
        const image = grabImage(view);
        const [first, second] = [0, 1].map(line => inkIn(image, lineBox(label, line, view)));
        verify(Math.abs(first.right - second.right) <= 3, first.right + " " + second.right);
        verify(second.left > first.left + 20);
    }

    Component {
        id: alertRow

        AlertRow {}
    }

    Component {
        id: appRow

        InstalledAppRow {}
    }

    Component {
        id: connectionRow

        NetworkConnectionRow {}
    }

    Component {
        id: header

        HeaderView {}
    }
}
