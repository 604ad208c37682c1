// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Views

/// Shows where the keyboard is, at the edge of its parent, unless the pointer
/// brought it there.
Rectangle {
    id: ring

    required property Item target

    anchors.fill: parent
    anchors.margins: 1
    visible: target.activeFocus && !origin.isPointer
    color: "transparent"
    radius: Theme.focusRadius
    border.width: 2
    border.color: Theme.blue
    z: 1

    FocusOrigin {
        id: origin

        target: ring.target
    }
}
