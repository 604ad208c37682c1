// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// The first alerts that the agent last reported.
Item {
    id: tab

    required property DashboardViewModel viewModel

    readonly property bool isEmpty: viewModel.alerts.count === 0

    Loader {
        anchors.fill: parent
        active: tab.isEmpty
        sourceComponent: EmptyState {
            icon: "checkmark.circle"
            iconColor: Theme.green
            text: "No threats detected"
        }
    }

    Loader {
        anchors.fill: parent
        active: !tab.isEmpty
        sourceComponent: PlainList {
            label: "Alerts"
            model: tab.viewModel.alerts // qmllint disable unqualified
            delegate: PlainListRow {
                id: row

                required property alertPresentation alert

                label: alert.accessibleName

                AlertRow {
                    width: parent.width
                    alert: row.alert
                }
            }
        }
    }
}
