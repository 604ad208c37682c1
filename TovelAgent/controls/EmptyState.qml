// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// Shown instead of an empty list.
Rectangle {
    id: state

    required property string icon
    required property color iconColor
    required property string text

    color: Theme.panelTint

    Column {
        anchors.centerIn: parent
        spacing: 20

        SymbolIcon {
            name: state.icon
            size: 40
            color: state.iconColor
            anchors.horizontalCenter: parent.horizontalCenter
        }

        Label {
            text: state.text
            color: Theme.gray
            anchors.horizontalCenter: parent.horizontalCenter
        }
    }
}
