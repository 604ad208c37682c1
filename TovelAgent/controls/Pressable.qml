// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// An item that can be pressed by pointer, keyboard or assistive technology.
Item {
    id: pressable

    required property string label
    property int focusInset: 1
    /// Whether a click takes the keyboard focus. False for the window's own
    /// buttons, which must leave the focus where it was.
    property bool takesFocus: true
    readonly property bool hovered: hover.hovered

    signal pressed

    // A held key repeats; only the first event is a press.
    function pressByKey(event) {
        if (!event.isAutoRepeat)
            pressed();
    }

    // Qt 6.4 reports an item with `activeFocusOnTab: true` as focusable, even if it is disabled.
    activeFocusOnTab: enabled

    Keys.onSpacePressed: event => pressByKey(event)
    Keys.onReturnPressed: event => pressByKey(event)
    Keys.onEnterPressed: event => pressByKey(event)

    Accessible.role: Accessible.Button
    Accessible.name: label
    // Qt 6.4 does not report the disabled state to assistive technology.
    Accessible.description: enabled ? "" : "Unavailable"
    Accessible.focusable: enabled
    // Assistive technology can also press a disabled item.
    Accessible.onPressAction: if (enabled) pressed()

    ClickArea {
        anchors.fill: parent
        // A finger needs 32 pixels, also where the layout gives less.
        anchors.topMargin: Math.min(0, (pressable.height - 32) / 2)
        anchors.bottomMargin: anchors.topMargin
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
