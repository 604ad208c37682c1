// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// One of the window's own buttons, such as Close.
Pressable {
    id: button

    required property string icon

    takesFocus: false
    implicitWidth: 30
    implicitHeight: 20

    Box {
        anchors.fill: parent
        anchors.margins: 1
        radius: Theme.mediumRadius
        color: Theme.hoverBackground
        visible: button.hovered
    }

    SymbolIcon {
        anchors.centerIn: parent
        name: button.icon
        size: 12
        color: Theme.windowGlyph
    }
}
