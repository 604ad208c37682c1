// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// What can be pressed, by pointer, keyboard or assistive technology.
Item {
    id: pressable

    required property string label
    property int focusInset: 1
    /// Not for what stands in for a part of the desktop: using that shall not
    /// take the keyboard from where the user was.
    property bool takesFocus: true
    readonly property bool hovered: hover.hovered

    signal pressed

    // A key that is held repeats, and would start one agent after the other.
    function pressBy(key) {
        if (!key.isAutoRepeat)
            pressed();
    }

    // Qt counts on it for assistive technology, enabled or not.
    activeFocusOnTab: enabled

    Keys.onSpacePressed: event => pressBy(event)
    Keys.onReturnPressed: event => pressBy(event)
    Keys.onEnterPressed: event => pressBy(event)

    Accessible.role: Accessible.Button
    Accessible.name: label
    // Qt has no word to assistive technology for what is disabled.
    Accessible.description: enabled ? "" : "Unavailable"
    Accessible.focusable: enabled
    Accessible.focused: activeFocus
    // Assistive technology presses what is disabled, too.
    Accessible.onPressAction: if (enabled) pressed()

    ClickArea {
        anchors.fill: parent
        onClicked: {
            if (pressable.takesFocus)
                pressable.forceActiveFocus(Qt.MouseFocusReason);
            pressable.pressed();
        }
    }

    HoverHandler {
        id: hover
    }

    FocusRing {
        target: pressable
        inset: pressable.focusInset
    }
}
