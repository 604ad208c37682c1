// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

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

    // Hides a pooled row from assistive technology until it is reused. Qt 6.8 also sets
    // `Accessible.ignored` of the row and does not reset it.
    ListView.onPooled: visible = false
    ListView.onReused: {
        visible = true;
        Accessible.ignored = false;
    }

    // Qt warns if this becomes false while the row still has the focus.
    activeFocusOnTab: ListView.isCurrentItem || activeFocus

    Accessible.role: Accessible.ListItem
    Accessible.name: label
    Accessible.description: (index + 1) + " of " + (ListView.view?.spokenCount ?? 0)
    Accessible.focusable: true

    Item {
        id: holder

        x: Theme.listInset
        y: Theme.listRowInset
        width: row.width - 2 * Theme.listInset
    }

    Box {
        anchors.bottom: parent.bottom
        x: Theme.listInset
        width: row.width - Theme.listInset
        height: 1
        color: Theme.separator
    }
}
