// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Tests
import Quillmark.Views
import "../support/qml"

ViewTest {
    name: "InstalledAppRow"

    function row(name, version) {
        return make(component, { width: 600, app: Sample.app(name, version) });
    }

    function test_texts() {
        const view = row("editor", "2.4.1");
        compare(textsIn(view), ["editor", "v2.4.1"]);
        compareLabel(labelOf(view, "editor"), 13, Font.DemiBold, Theme.text);
        compareLabel(labelOf(view, "v2.4.1"), 11, Font.Normal, Theme.gray);
    }

    function test_layout() {
        const view = row("editor", "2.4.1");
        const name = labelOf(view, "editor");
        const version = labelOf(view, "v2.4.1");
        compare(boxIn(name, view).x, 0);
        compare(boxIn(name, view).y, 0);
        compare(boxIn(version, view).x, 0);
        compare(roomBelow(name, version), 4);
        compare(view.height, name.height + 4 + version.height);
    }

    function test_absentVersionTakesNoRoom() {
        const view = row("editor", undefined);
        compare(textsIn(view), ["editor"]);
        compare(view.height, labelOf(view, "editor").height);
    }

    function test_emptyVersionIsAVersion() {
        compare(textsIn(row("editor", "")), ["editor", "v"]);
    }

    Component {
        id: component

        InstalledAppRow {}
    }
}
