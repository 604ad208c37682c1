// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// One numbered step of a list of instructions. No tab shows one yet.
Item {
    id: step

    required property string number
    required property string title
    required property string description

    implicitHeight: Math.max(badge.height, texts.height)

    Box {
        id: badge

        width: 24
        height: 24
        radius: 12
        color: Theme.blue

        Label {
            anchors.centerIn: parent
            text: step.number
            size: 12
            font.weight: Font.Bold
            color: Theme.white
        }
    }

    Column {
        id: texts

        anchors.left: badge.right
        anchors.leftMargin: 10
        anchors.right: parent.right
        spacing: 2

        Label {
            width: parent.width
            text: step.title
            size: 12
            font.weight: Font.DemiBold
        }

        Label {
            width: parent.width
            text: step.description
            size: 11
            color: Theme.gray
        }
    }
}
