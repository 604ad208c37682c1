// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// The connections that the agent last reported.
Item {
    id: tab

    required property DashboardViewModel viewModel

    readonly property bool isEmpty: viewModel.networkConnections.count === 0

    Loader {
        anchors.fill: parent
        active: tab.isEmpty
        sourceComponent: EmptyState {
            icon: "network"
            iconColor: Theme.gray
            text: "No network connections detected"
        }
    }

    Loader {
        anchors.fill: parent
        active: !tab.isEmpty
        sourceComponent: PlainList {
            label: "Network connections"
            model: tab.viewModel.networkConnections // qmllint disable unqualified
            delegate: PlainListRow {
                id: row

                required property connectionPresentation connection

                label: connection.accessibleName

                NetworkConnectionRow {
                    width: parent.width
                    connection: row.connection
                }
            }
        }
    }
}
