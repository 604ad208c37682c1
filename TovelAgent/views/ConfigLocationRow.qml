// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// One path where a configuration of the agent may be.
Box {
    id: row

    required property string path
    required property string description

    width: parent?.width ?? 0
    implicitHeight: column.height + 2 * 8
    radius: Theme.smallRadius
    color: Theme.panelTint

    SpokenItem {
        anchors.fill: parent
        label: row.path + ", " + row.description

        Accessible.role: Accessible.ListItem

        Column {
            id: column

            x: 8
            y: 8
            spacing: 4

            Row {
                spacing: Theme.spacing

                SymbolIcon {
                    name: "document.text"
                    size: 12
                    color: Theme.blue
                    anchors.verticalCenter: parent.verticalCenter
                }

                Label {
                    width: row.width - 2 * 8 - x
                    text: row.path
                    size: 12
                    maximumLineCount: 1
                    elide: Text.ElideRight
                    font.weight: Font.DemiBold
                    anchors.verticalCenter: parent.verticalCenter
                }
            }

            Label {
                text: row.description
                size: 11
                color: Theme.gray
            }
        }
    }
}
