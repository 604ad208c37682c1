// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A number with its title; the parent sets its width. It takes the keyboard focus, so
/// that a screen reader reads it.
Item {
    id: card

    required property string title
    required property string value

    implicitHeight: texts.height + 2 * 16

    SoftShadow {
        anchors.fill: parent
        radius: Theme.largeRadius
    }

    Box {
        anchors.fill: parent
        radius: Theme.largeRadius
        color: Theme.white
    }

    SpokenItem {
        anchors.fill: parent
        label: card.title + ": " + card.value

        Column {
            id: texts

            x: 16
            y: 16
            spacing: 8

            Label {
                text: card.title
                size: 13
                color: Theme.gray
            }

            Label {
                text: card.value
                size: 32
                font.weight: Font.Bold
                color: Theme.blue
            }
        }
    }
}
