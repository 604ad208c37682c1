// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// The connections of the latest poll.
ListPage {
    id: page

    required property DashboardViewModel viewModel

    pageName: "Network"
    listName: "Network connections"
    model: viewModel.networkConnections
    placeholderText: "No network connections detected"
    placeholder: EmptyState {
        icon: "network"
        iconColor: Theme.gray
        text: page.placeholderText // qmllint disable unqualified
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
