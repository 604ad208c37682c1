// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// What can be pressed, by pointer, keyboard or assistive technology.
Item {
    id: pressable

    required property string label
    property int focusMargin: 1
    readonly property bool hovered: hover.hovered

    signal pressed

    activeFocusOnTab: true

    Keys.onSpacePressed: pressed()
    Keys.onReturnPressed: pressed()
    Keys.onEnterPressed: pressed()

    Accessible.role: Accessible.Button
    Accessible.name: label
    Accessible.focusable: true
    Accessible.focused: activeFocus
    // Assistive technology presses what is disabled, too.
    Accessible.onPressAction: if (enabled) pressed()

    TapHandler {
        onTapped: pressable.pressed()
    }

    HoverHandler {
        id: hover
    }

    FocusRing {
        target: pressable
        anchors.margins: pressable.focusMargin
    }
}
