// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick

/// The shadow of a box of corner radius `radius` that fills the same place:
/// translucent outlines, each a step larger and fainter. Plain shapes, since an
/// effect draws nothing without a graphics card.
Item {
    id: shadow

    property real radius: 0

    // How much of the shadow each step adds, from the box's edge outwards.
    readonly property list<real> steps: [0.22, 0.17, 0.1, 0.05]

    Repeater {
        model: shadow.steps

        Rectangle {
            required property int index
            required property real modelData
            readonly property real spread: (index + 1) * Theme.shadowRadius / 2

            anchors.fill: parent
            anchors.margins: -spread
            radius: shadow.radius + spread
            color: Theme.shadow
            opacity: modelData * Theme.shadowOpacity
        }
    }
}
