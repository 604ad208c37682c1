// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import "../support/qml"

ViewTest {
    name: "SectionCard"

    function card() {
        return makeWide(400, component, { icon: "gear", title: "Section" });
    }

    function test_header() {
        const view = card();
        const icon = itemOfType(view, "SymbolIcon");
        const title = labelOf(view, "Section");
        compareIcon(icon, "gear", 16, Theme.blue);
        compareLabel(title, 16, Font.DemiBold, Theme.black);
        compare(boxIn(icon, view).x, 12);
        compare(boxIn(icon.parent, view).y, 12);
        compare(roomBeside(icon, title), Theme.spacing);
        compareMiddleHeight(icon, title);
    }

    function test_rowsAreBelowTheHeader() {
        const view = card();
        const header = labelOf(view, "Section").parent;
        const row = itemOfType(view, "Rectangle");
        compare(boxIn(row, view).x, 12);
        compare(row.width, 400 - 2 * 12);
        compare(roomBelow(header, row), 8);
        compare(view.height, 12 + header.height + 8 + row.height + 12);
        view.spacing = 10;
        settle(view);
        compare(roomBelow(header, row), 10);
    }

    function test_ground() {
        const view = card();
        compareColor(view.color, Theme.white);
        compare(view.radius, 6);
        compare(view.borderWidth, 1);
        compareColor(view.borderColor, Qt.rgba(0.9, 0.9, 0.9, 1));
    }

    function test_accessible() {
        const view = card();
        compare(view.Accessible.role, Accessible.Grouping);
        compare(view.Accessible.name, "Section");
    }

    Component {
        id: component

        SectionCard {
            Rectangle {
                width: parent.width
                height: 50
            }
        }
    }
}
