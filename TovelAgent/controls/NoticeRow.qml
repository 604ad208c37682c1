// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A line with an icon on a tinted background: reports success or failure.
Box {
    id: notice

    required property string icon
    required property string text
    required property bool isGood

    readonly property color foreground: isGood ? Theme.green : Theme.red

    width: parent?.width ?? 0
    implicitHeight: Math.max(symbol.height, label.height) + 2 * 8
    radius: Theme.smallRadius
    color: isGood ? Theme.successTint : Theme.errorTint

    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    SymbolIcon {
        id: symbol

        x: 8
        anchors.verticalCenter: parent.verticalCenter
        name: notice.icon
        size: 11
        color: notice.foreground
    }

    Label {
        id: label

        anchors.left: symbol.right
        anchors.leftMargin: Theme.spacing
        anchors.right: parent.right
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        text: notice.text
        size: 11
        color: notice.foreground
    }
}
