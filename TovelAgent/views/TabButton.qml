// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// One tab of the tab bar. Only the active one has an underline, which makes it
/// taller.
Pressable {
    id: button

    required property string title
    required property string icon
    required property bool isActive

    readonly property color foreground: isActive ? Theme.blue : Theme.gray

    label: title
    implicitWidth: column.width
    implicitHeight: column.height

    Accessible.role: Accessible.PageTab
    Accessible.selectable: true
    Accessible.selected: isActive
    // Screen readers do not speak the state of a tab.
    Accessible.description: isActive ? "Selected" : ""

    Column {
        id: column

        spacing: 4

        Item {
            width: row.width + 2 * 16
            height: row.height + 2 * 10

            Row {
                id: row

                x: 16
                y: 10
                spacing: 6

                SymbolIcon {
                    name: button.icon
                    size: 14
                    color: button.foreground
                    anchors.verticalCenter: parent.verticalCenter
                }

                Label {
                    text: button.title
                    size: 13
                    font.weight: Font.DemiBold
                    color: button.foreground
                    anchors.verticalCenter: parent.verticalCenter
                }
            }
        }

        Box {
            visible: button.isActive
            width: parent.width
            height: 3
            radius: Theme.underlineRadius
            color: Theme.blue
        }
    }
}
