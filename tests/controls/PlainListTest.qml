// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import "../support/qml"

/// Tests of a list of rows of the same height.
ViewTest {
    readonly property int rowHeight: 30

    readonly property Component component: Component {
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

    function list(count) {
        const view = make(component, { width: 400, height: 300, model: count });
        view.forceActiveFocus(Qt.TabFocusReason);
        return view;
    }

    /// The row with the keyboard focus, after a check that all of it is in view.
    function readRow(view) {
        const row = view.currentItem;
        verify(row.activeFocus);
        const box = boxIn(row, view);
        verify(box.y >= -1 && box.bottom <= view.height + 1, "in view: " + box);
        return row.index;
    }
}
