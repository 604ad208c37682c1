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

    /// As compare(), without printing megabytes.
    function compareShown(view, expected) {
        const texts = textsIn(view);
        compare(texts.map(text => text.length), expected.map(text => text.length));
        for (let i = 0; i < texts.length; ++i)
            verify(texts[i] === expected[i]);
    }

    function test_rows(data) {
        const text = data.text;
        compareShown(make(alertRow, { width: 600, alert: Sample.alert("high", "malware", text) }), ["malware", text]);
        compareShown(make(appRow, { width: 600, app: Sample.app(text, "1") }), [text, "v1"]);
    }

    function test_connection_data() {
        return test_rows_data();
    }

    function test_connection(data) {
        const text = data.text;
        const row = make(connectionRow, { width: 600, connection: Sample.connection(text, "", "state") });
        compareShown(row, [text + ":", "→ " + text + ":", "state"]);
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
        compare(textsIn(view).filter(one => one === text).length, 1);
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
