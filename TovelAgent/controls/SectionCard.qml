// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A titled card with an icon.
Box {
    id: card

    required property string icon
    required property string title
    property alias spacing: column.spacing
    default property alias rows: column.data

    width: parent?.width ?? 0
    implicitHeight: column.height + 2 * 12
    color: Theme.white
    radius: Theme.mediumRadius
    borderWidth: 1
    borderColor: Theme.sectionBorder

    Accessible.role: Accessible.Grouping
    Accessible.name: title

    Column {
        id: column

        x: 12
        y: 12
        width: card.width - 2 * 12
        spacing: 8

        Row {
            spacing: Theme.spacing

            SymbolIcon {
                name: card.icon
                size: 16
                color: Theme.blue
                anchors.verticalCenter: parent.verticalCenter
            }

            Label {
                text: card.title
                size: 16
                font.weight: Font.DemiBold
                anchors.verticalCenter: parent.verticalCenter
            }
        }
    }
}
