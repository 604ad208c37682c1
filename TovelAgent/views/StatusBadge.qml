// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A small titled value with a dot that shows whether it is healthy. The value
/// wraps when the badge would be wider than `maximumWidth`. It takes the keyboard
/// focus, so that a screen reader reads it.
Item {
    id: badge

    required property string title
    required property string value
    required property bool isHealthy
    property real maximumWidth: Infinity

    width: Math.min(implicitWidth, maximumWidth)
    implicitWidth: Math.max(titleLabel.width, line.spacing + dot.width + valueLabel.naturalWidth)
    implicitHeight: column.height

    SpokenItem {
        anchors.fill: parent
        label: badge.title + ": " + badge.value
        description: badge.isHealthy ? "Healthy" : "Needs attention"
        focusInset: -5

        Column {
            id: column

            spacing: 4

            Label {
                id: titleLabel

                text: badge.title
                size: 11
                color: Theme.gray
            }

            Row {
                id: line

                spacing: 6

                Box {
                    id: dot

                    width: 8
                    height: 8
                    radius: 4
                    color: badge.isHealthy ? Theme.green : Theme.red
                    anchors.verticalCenter: parent.verticalCenter
                }

                HeaderValue {
                    id: valueLabel

                    width: Math.min(naturalWidth, badge.maximumWidth - dot.width - line.spacing)
                    text: badge.value
                    size: 14
                }
            }
        }
    }
}
