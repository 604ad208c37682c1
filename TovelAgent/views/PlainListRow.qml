// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// One row of a `PlainList`: the insets and the line under it, round whatever
/// the row shows.
Item {
    id: row

    default property alias content: holder.data
    required property string label

    width: ListView.view ? ListView.view.width : 0
    height: holder.childrenRect.height + 2 * Theme.listRowInset

    // Until it is used again, a row that scrolled away is nobody's to read.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    Accessible.role: Accessible.ListItem
    Accessible.name: label

    Item {
        id: holder

        x: Theme.listInset
        y: Theme.listRowInset
        width: row.width - 2 * Theme.listInset
    }

    Rectangle {
        anchors.bottom: parent.bottom
        x: Theme.listInset
        width: row.width - Theme.listInset
        height: 1
        color: Theme.separator
    }
}
