// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// One row of a `PlainList`: adds the insets and the line below to the row's
/// content.
Item {
    id: row

    default property alias content: holder.data
    required property string label
    required property int index

    readonly property real pixel: 1 / Screen.devicePixelRatio

    width: ListView.view ? ListView.view.width : 0
    // Whole device pixels, or the lines below the rows differ in thickness.
    height: Math.ceil((holder.childrenRect.height + 2 * Theme.listRowInset) / pixel) * pixel

    // Hides a pooled row from assistive technology until it is reused.
    ListView.onPooled: visible = false
    ListView.onReused: visible = true

    // Qt warns if this becomes false while the row still has the focus.
    activeFocusOnTab: ListView.isCurrentItem || activeFocus

    Accessible.role: Accessible.ListItem
    Accessible.name: label
    Accessible.description: (index + 1) + " of " + (ListView.view?.spokenCount ?? 0)
    Accessible.focusable: true
    Accessible.focused: activeFocus

    Item {
        id: holder

        x: Theme.listInset
        y: Theme.listRowInset
        width: row.width - 2 * Theme.listInset
    }

    Rectangle {
        anchors.bottom: parent.bottom
        // Moves the edge off a pixel's middle, where rounding is unpredictable.
        anchors.bottomMargin: row.pixel / 8
        x: Theme.listInset
        width: row.width - Theme.listInset
        height: 1
        color: Theme.separator
        // The difference from 1 is invisible. The renderer assumes that an opaque box
        // covers every pixel it touches, and leaves partly covered ones unpainted.
        opacity: 0.999
    }
}
