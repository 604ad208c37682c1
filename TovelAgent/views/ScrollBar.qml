// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Templates as T

/// A slim bar at the right that can be dragged; there only when there is
/// something to scroll.
T.ScrollBar {
    id: bar

    implicitWidth: 14
    minimumSize: 24 / Math.max(24, height)
    padding: 3
    // At the window's edge, where the pointer resizes, it could not be held.
    rightPadding: 5
    visible: size < 1

    // What it does, the keyboard does at what it scrolls.
    Accessible.ignored: true

    contentItem: Rectangle {
        radius: width / 2
        color: Theme.scrollBar
        opacity: bar.pressed || bar.hovered ? 1 : 0.6
    }
}
