// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// Shows where the keyboard is, at the edge of its parent, unless the pointer
/// brought it there.
Box {
    id: ring

    required property Item target
    /// How far from its parent's edge, inwards.
    property int inset: 1

    anchors.fill: parent
    // Whole pixels of the screen, or it would be nearer to one side than another.
    anchors.margins: Math.round(inset * Screen.devicePixelRatio) / Screen.devicePixelRatio
    visible: target.activeFocus && !origin.isPointer
    color: "transparent"
    radius: Theme.focusRadius
    borderWidth: 2
    borderColor: Theme.blue
    z: 1

    FocusOrigin {
        id: origin

        target: ring.target
    }
}
