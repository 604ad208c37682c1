// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// One alert, with an icon for its severity.
Item {
    id: row

    required property alertPresentation alert

    implicitHeight: Math.max(icon.height, texts.height) + 2 * 8

    SymbolIcon {
        id: icon

        anchors.verticalCenter: parent.verticalCenter
        name: row.alert.severityIcon
        color: Theme[row.alert.severityColor]
    }

    Column {
        id: texts

        anchors.left: icon.right
        anchors.leftMargin: Theme.spacing
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spacing

        Label {
            width: parent.width
            text: row.alert.alertType
            size: 13
            font.weight: Font.DemiBold
        }

        Label {
            visible: row.alert.hasDescription
            width: parent.width
            text: row.alert.description
            size: 11
            color: Theme.gray
        }
    }
}
