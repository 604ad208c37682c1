// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick

/// The row of tabs. `tabs` holds identifier, title and icon of each.
Rectangle {
    id: bar

    required property var tabs
    required property string selectedTab

    signal tabTapped(string identifier)

    implicitHeight: row.height + 2 * 12
    color: Theme.panelTint

    Accessible.role: Accessible.PageTabList
    Accessible.name: "Tabs"

    Row {
        id: row

        x: 20
        y: 12

        Repeater {
            id: buttons

            model: bar.tabs

            TabButton {
                id: button

                required property var modelData
                required property int index

                title: modelData.title
                icon: modelData.icon
                isActive: bar.selectedTab === modelData.identifier
                anchors.verticalCenter: parent?.verticalCenter
                onPressed: bar.tabTapped(modelData.identifier)

                KeyNavigation.left: buttons.itemAt(index - 1)

                Shortcut {
                    sequence: "Ctrl+" + (button.index + 1)
                    onActivated: button.pressed()
                }
            }
        }
    }
}
