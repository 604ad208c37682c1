// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// The first applications of the latest poll. Without an inventory the tab is blank;
/// "Loading applications..." stands for an inventory without applications.
ListPage {
    id: tab

    required property DashboardViewModel viewModel

    title: "Inventory"
    label: "Installed applications"
    model: viewModel.apps
    emptyText: viewModel.hasInventory ? "Loading applications..." : ""
    placeholder: Item {
        Label {
            visible: text.length > 0
            anchors.centerIn: parent
            text: tab.emptyText // qmllint disable unqualified
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
