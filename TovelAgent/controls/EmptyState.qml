// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// Shown instead of an empty list.
Rectangle {
    id: emptyState

    required property string icon
    required property color iconColor
    required property string text

    color: Theme.panelTint

    Column {
        anchors.centerIn: parent
        spacing: 20

        SymbolIcon {
            name: emptyState.icon
            size: 40
            color: emptyState.iconColor
            anchors.horizontalCenter: parent.horizontalCenter
        }

        Label {
            text: emptyState.text
            color: Theme.gray
            anchors.horizontalCenter: parent.horizontalCenter
        }
    }
}
