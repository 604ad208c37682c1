// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A filled button with an icon and a text.
Pressable {
    id: button

    required property string icon
    required property string text
    required property color background
    property int padding: 10

    label: text
    focusInset: -3
    implicitHeight: row.height + 2 * padding

    Box {
        anchors.fill: parent
        radius: Theme.mediumRadius
        color: button.background
    }

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Theme.spacing

        SymbolIcon {
            name: button.icon
            size: 12
            color: Theme.white
            anchors.verticalCenter: parent.verticalCenter
        }

        Label {
            text: button.text
            size: 12
            font.weight: Font.DemiBold
            color: Theme.white
            anchors.verticalCenter: parent.verticalCenter
        }
    }
}
