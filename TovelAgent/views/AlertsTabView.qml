// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// At most the first 100 alerts of the latest poll.
ListPage {
    id: page

    required property DashboardViewModel viewModel

    pageName: "Alerts"
    listName: "Security alerts"
    model: viewModel.alerts
    placeholderText: "No threats detected"
    placeholder: EmptyState {
        icon: "checkmark.circle"
        iconColor: Theme.green
        text: page.placeholderText // qmllint disable unqualified
    }
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
