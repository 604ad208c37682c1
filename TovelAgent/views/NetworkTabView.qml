// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// The connections of the latest poll.
ListPage {
    required property DashboardViewModel viewModel

    label: "Network connections"
    model: viewModel.networkConnections
    placeholder: EmptyState {
        icon: "network"
        iconColor: Theme.gray
        text: "No network connections detected"
    }
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
