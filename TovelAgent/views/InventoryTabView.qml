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

    label: "Installed applications"
    model: viewModel.apps
    placeholder: Item {
        Label {
            visible: tab.viewModel.hasInventory // qmllint disable unqualified
            anchors.centerIn: parent
            text: "Loading applications..."
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
