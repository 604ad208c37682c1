// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// A small titled value with a dot that says whether it is as it should be.
Column {
    id: badge

    required property string title
    required property string value
    required property bool isHealthy

    spacing: 4

    Label {
        text: badge.title
        size: 11
        color: Theme.gray
    }

    Row {
        spacing: 6

        // Here, for Qt takes the property `value` of an accessible item for a
        // number that can be set.
        Accessible.role: Accessible.Grouping
        Accessible.name: badge.title
        Accessible.description: badge.isHealthy ? "Healthy" : "Needs attention"

        Rectangle {
            objectName: "dot"
            width: 8
            height: 8
            radius: 4
            color: badge.isHealthy ? Theme.green : Theme.red
            anchors.verticalCenter: parent.verticalCenter
        }

        ElidedLabel {
            text: badge.value
            size: 14
            font.weight: Font.DemiBold
            color: Theme.black
            maximumWidth: Theme.headerTextWidth
        }
    }
}
