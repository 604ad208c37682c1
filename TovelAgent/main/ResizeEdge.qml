// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// A strip along one edge, or a square at a corner, that resizes the window.
MouseArea {
    id: strip

    required property Window window
    required property int edges
    required property int thickness
    required property int corner

    readonly property bool atTop: edges & Qt.TopEdge
    readonly property bool atBottom: edges & Qt.BottomEdge
    readonly property bool atLeft: edges & Qt.LeftEdge
    readonly property bool atRight: edges & Qt.RightEdge
    readonly property bool isCorner: (atTop || atBottom) && (atLeft || atRight)

    anchors.top: atBottom ? undefined : parent?.top
    anchors.bottom: atTop ? undefined : parent?.bottom
    anchors.left: atRight ? undefined : parent?.left
    anchors.right: atLeft ? undefined : parent?.right
    width: isCorner ? corner : thickness
    height: isCorner ? corner : thickness

    cursorShape: isCorner ? (atTop === atLeft ? Qt.SizeFDiagCursor : Qt.SizeBDiagCursor)
                          : (atTop || atBottom ? Qt.SizeVerCursor : Qt.SizeHorCursor)
    onPressed: window.startSystemResize(edges)
}
