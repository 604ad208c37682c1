// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Tests
import Quillmark.Views

/// A text of a megabyte, in one word and in many, is one text like any other:
/// what it costs must grow no faster than it does, or this test never ends.
ViewTest {
    name: "LongText"

    readonly property int megabyte: 1024 * 1024

    function test_rows_data() {
        return [
            { tag: "one word", text: "0123456789abcdef".repeat(megabyte / 16) },
            { tag: "many words", text: "012345 789abcde ".repeat(megabyte / 16) },
            { tag: "many lines", text: "0123456789abcde\n".repeat(megabyte / 16) }
        ];
    }

    /// The one line of `shown` begins as `text` and says that there is more.
    function verifyShortened(shown, text) {
        const end = shown.indexOf("…");
        verify(end > 3000 && end < 5000);
        verify(text.startsWith(shown.slice(0, end)));
    }

    // A line break between two pieces is not part of either.
    function joined(texts) {
        return texts.join("").replace(/\n/g, "");
    }

    function test_rows(data) {
        const text = data.text;
        const alert = make(alertRow, { width: 600, alert: Sample.alert("high", "malware", text) });
        tryVerify(() => joined(textsIn(alert)) === joined(["malware", text]), 60000);
        const app = make(appRow, { width: 600, app: Sample.app(text, "1") });
        tryVerify(() => joined(textsIn(app)) === joined([text, "v1"]), 60000);
    }

    function test_linesStandAsInOnePiece() {
        const text = "0123456789abcde\n".repeat(1000) + "the end";
        const inPieces = make(longLabel, { width: 600, size: 11, text: Sample.alert("", "", text).description });
        const inOne = make(wrappedLabel, { width: 600, size: 11, text: text });
        tryCompare(inPieces, "height", inOne.height);
    }

    function test_rowsAreLaidOutAsFarAsTheyCanBeSeen(data) {
        const text = data.text.slice(0, 40000);
        const list = make(alertList, { width: 600, height: 400, model: [Sample.alert("high", "malware", text)] });
        const read = () => joined(textsIn(list.itemAtIndex(0))).slice("malware".length);
        tryVerify(() => list.contentHeight > list.height);
        wait(200);
        verify(read().length < text.length / 2);
        verify(joined([text]).startsWith(read()));
        // Who goes on to the end finds all of it.
        tryVerify(() => {
            list.positionViewAtEnd();
            return read() === joined([text]);
        }, 60000);
    }

    function test_rowsAreLaidOutAsFarAsTheyCanBeSeen_data() {
        return test_rows_data();
    }

    function test_connection_data() {
        return test_rows_data();
    }

    function test_connection(data) {
        const text = data.text;
        const row = make(connectionRow, { width: 600, connection: Sample.connection(text, "", "state") });
        const [local, remote, state] = textsIn(row);
        verifyShortened(local, text);
        verifyShortened(remote.slice("→ ".length), text);
        verify(local.endsWith("…:"));
        compare(state, "state");
    }

    function test_connectionStaysOneRow() {
        const text = "0123456789abcdef".repeat(megabyte / 16);
        const row = make(connectionRow, { width: 600, connection: Sample.connection(text, "1", text) });
        const usual = make(connectionRow, { width: 600, connection: Sample.connection("a", "1", "b") });
        compare(row.implicitHeight, usual.implicitHeight);
        for (const label of labelsIn(row))
            verify(boxIn(label, row).x >= 0 && boxIn(label, row).right <= row.width);
    }

    function test_header() {
        const text = "0123456789ABCDEF".repeat(megabyte / 16);
        const view = make(header, { width: 900, status: Sample.status(text, 0, "yesterday") });
        verifyShortened(textsIn(view).find(one => one.startsWith("0123")), text);
    }

    Component {
        id: longLabel

        LongLabel {}
    }

    Component {
        id: wrappedLabel

        WrappedLabel {}
    }

    Component {
        id: alertRow

        AlertRow {}
    }

    Component {
        id: alertList

        PlainList {
            id: list

            label: "Alerts"
            delegate: PlainListRow {
                required property var modelData

                label: ""

                AlertRow {
                    width: parent.width
                    alert: modelData
                }
            }
        }
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
