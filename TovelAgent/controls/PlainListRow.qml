// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// One row of a `PlainList`: the insets and the line under it, round whatever
/// the row shows.
Item {
    id: row

    default property alias content: holder.data
    required property string label

    readonly property real pixel: 1 / Screen.devicePixelRatio

    width: ListView.view ? ListView.view.width : 0
    // Whole pixels of the screen, or the lines under rows differ in thickness.
    height: Math.ceil((holder.childrenRect.height + 2 * Theme.listRowInset) / pixel) * pixel

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
        // Off the middle of a pixel, where it is left to chance how it is rounded.
        anchors.bottomMargin: row.pixel / 8
        x: Theme.listInset
        width: row.width - Theme.listInset
        height: 1
        color: Theme.separator
        // Not to be seen. A box without it counts for the renderer as hiding every
        // pixel it touches, and what it only touches stays unpainted.
        opacity: 0.999
    }
}
