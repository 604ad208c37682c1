// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma Singleton

import QtQuick

/// The colours, radii and sizes that several views share. Each text colour has
/// a contrast of at least 4.5 to 1 on every background it is used on, each icon
/// colour at least 3 to 1.
QtObject {
    readonly property color blue: "#0B5FD9"
    readonly property color gray: "#656B75"
    readonly property color green: "#187A33"
    readonly property color red: "#C4232B"
    // These two are only looked up by name, as `Theme[name]`.
    readonly property color orange: "#C75B00"
    readonly property color yellow: "#A87B00"
    readonly property color black: "#000000"
    readonly property color white: "#FFFFFF"

    readonly property color text: black
    readonly property color panelTint: Qt.rgba(0.98, 0.98, 0.99, 1)
    readonly property color listBackground: white
    readonly property color sectionBorder: Qt.rgba(0.9, 0.9, 0.9, 1)
    readonly property color fieldBorder: "#8A8F99"
    readonly property color successTint: Qt.rgba(0.9, 1, 0.9, 1)
    readonly property color errorTint: Qt.rgba(1, 0.9, 0.9, 1)
    readonly property color separator: "#E3E5EA"
    readonly property color windowBorder: "#B9BDC6"
    readonly property color windowGlyph: gray
    readonly property color hoverBackground: "#E9EBEF"
    readonly property color scrollBar: "#858A94"
    readonly property color shadow: "#000000"
    readonly property real shadowOpacity: 0.33
    readonly property real shadowRadius: 2

    readonly property int spacing: 8
    /// Between two blocks that share the width of a row.
    readonly property int blockGap: 2 * spacing
    readonly property int bodySize: 13
    /// The thickness of the window's edge where a drag resizes the window.
    readonly property int resizeBorder: 5
    readonly property int smallRadius: 4
    readonly property int mediumRadius: 6
    readonly property int largeRadius: 8
    readonly property int underlineRadius: 2
    readonly property int listInset: 20
    readonly property int listRowInset: 6
}
