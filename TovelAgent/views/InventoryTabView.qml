// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// The first applications that the agent found. Blank while there is no
/// inventory.
Item {
    id: tab

    required property DashboardViewModel viewModel

    readonly property bool isEmpty: viewModel.apps.count === 0

    Label {
        visible: tab.viewModel.hasInventory && tab.isEmpty
        anchors.centerIn: parent
        text: "Loading applications..."
        color: Theme.gray
    }

    Loader {
        anchors.fill: parent
        active: !tab.isEmpty
        sourceComponent: PlainList {
            label: "Installed applications"
            model: tab.viewModel.apps // qmllint disable unqualified
            delegate: PlainListRow {
                id: row

                required property appPresentation app

                label: app.accessibleName

                InstalledAppRow {
                    width: parent.width
                    app: row.app
                }
            }
        }
    }
}
