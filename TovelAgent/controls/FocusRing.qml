// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// Marks the keyboard focus along the edge of its parent, unless the focus came
/// from the pointer.
Box {
    id: ring

    required property Item target
    property alias fromPointer: origin.fromPointer
    /// The distance from its parent's edge; positive is inwards.
    property int inset: 1

    anchors.fill: parent
    // Whole device pixels, or the margins would differ from side to side.
    anchors.margins: Math.round(inset * Screen.devicePixelRatio) / Screen.devicePixelRatio
    visible: (target?.activeFocus ?? false) && !origin.fromPointer
    color: "transparent"
    radius: Theme.mediumRadius
    borderWidth: 2
    borderColor: Theme.blue
    z: 1

    FocusOrigin {
        id: origin

        target: ring.target
    }
}
