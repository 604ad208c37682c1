// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import "../support/qml"

ViewTest {
    name: "NoticeRow"

    function notice(properties) {
        return makeWide(300, component, Object.assign({ icon: "gear", text: "Told", isGood: true }, properties));
    }

    function test_look_data() {
        return [
            { tag: "good", isGood: true, ink: Theme.green, ground: Qt.rgba(0.9, 1, 0.9, 1) },
            { tag: "bad", isGood: false, ink: Theme.red, ground: Qt.rgba(1, 0.9, 0.9, 1) }
        ];
    }

    function test_look(data) {
        const view = notice({ isGood: data.isGood });
        compareIcon(itemOfType(view, "SymbolIcon"), "gear", 11, data.ink);
        compareLabel(labelOf(view, "Told"), 11, Font.Normal, data.ink);
        compareColor(view.color, data.ground);
        compare(view.radius, 4);
        compare(view.borderWidth, 0);
    }

    function test_layout() {
        const view = notice();
        const icon = itemOfType(view, "SymbolIcon");
        const label = labelOf(view, "Told");
        compare(boxIn(icon, view).x, 8);
        compare(roomBeside(icon, label), Theme.spacing);
        compare(view.width - boxIn(label, view).right, 8);
        compare(view.height, Math.max(icon.height, label.height) + 2 * 8);
        compareMiddleHeight(icon, view);
        compareMiddleHeight(label, view);
    }

    function test_longTextWraps() {
        const view = notice({ text: "word ".repeat(50) });
        const label = labelOf(view, view.text);
        verify(label.lineCount > 3);
        verify(!label.truncated);
        compare(view.height, label.height + 2 * 8);
    }

    function test_accessible() {
        const view = notice();
        compare(view.Accessible.role, Accessible.AlertMessage);
        compare(view.Accessible.name, "Told");
    }

    Component {
        id: component

        NoticeRow {}
    }
}
