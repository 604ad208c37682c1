// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// At most the first 50 applications of the latest poll. Blank until there is an inventory.
/// An inventory without applications is shown as "Loading applications...", on purpose.
ListPage {
    id: tab

    required property DashboardViewModel viewModel

    pageName: "Inventory"
    listName: "Installed applications"
    model: viewModel.apps
    placeholderText: viewModel.hasInventory ? "Loading applications..." : ""
    placeholder: Item {
        Label {
            visible: text.length > 0
            anchors.centerIn: parent
            text: tab.placeholderText // qmllint disable unqualified
            color: Theme.gray
        }
    }
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
