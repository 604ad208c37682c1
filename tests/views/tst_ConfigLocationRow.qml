// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views
import "../support/qml"

ViewTest {
    name: "ConfigLocationRow"

    function row(properties) {
        return makeWide(300, component, Object.assign({ path: "/etc/x.toml", description: "Somewhere" }, properties));
    }

    function test_content() {
        const view = row();
        compareIcon(itemOfType(view, "SymbolIcon"), "document.text", 12, Theme.blue);
        compareLabel(labelOf(view, "/etc/x.toml"), 12, Font.DemiBold, Theme.black);
        compareLabel(labelOf(view, "Somewhere"), 11, Font.Normal, Theme.gray);
    }

    function test_layout() {
        const view = row();
        const icon = itemOfType(view, "SymbolIcon");
        const path = labelOf(view, "/etc/x.toml");
        const description = labelOf(view, "Somewhere");
        compare(boxIn(icon, view).x, 8);
        compare(roomBeside(icon, path), Theme.spacing);
        compareMiddleHeight(icon, path);
        compare(boxIn(path.parent, view).y, 8);
        compare(boxIn(description, view).x, 8);
        compare(roomBelow(path.parent, description), 4);
        compare(view.height, 8 + path.parent.height + 4 + description.height + 8);
    }

    function test_ground() {
        const view = row();
        compareColor(view.color, Qt.rgba(0.98, 0.98, 0.99, 1));
        compare(view.radius, 4);
        compare(view.borderWidth, 0);
    }

    function test_longPathIsOneLineWithAnEllipsis() {
        const view = row({ path: "/a/long/folder".repeat(20) });
        const path = labelOf(view, view.path);
        compare(path.lineCount, 1);
        verify(path.truncated);
        compare(boxIn(path, view).right, 300 - 8);
    }

    Component {
        id: component

        ConfigLocationRow {}
    }
}
