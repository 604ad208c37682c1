// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Main

/// Replaces the title bar and the frame: drag the window at its header band,
/// resize it at its edges, minimise, maximise and close it.
Item {
    id: frame

    required property Window window
    required property real dragHeight

    readonly property bool fillsScreen: window.visibility === Window.Maximized
                                        || window.visibility === Window.FullScreen
    /// The side of the square where a drag resizes two edges; the buttons stay clear of it.
    readonly property int resizeCorner: 12

    function toggleMaximized() {
        if (fillsScreen)
            window.showNormal();
        else
            window.showMaximized();
    }

    // A MouseArea, because a pointer handler waits forever for the release, which
    // only the window manager gets. The drag starts with the movement, because a
    // press alone may become a double click.
    MouseArea {
        property point pressedAt
        property bool isMoving

        width: parent.width
        height: frame.dragHeight
        onPressed: mouse => {
            pressedAt = Qt.point(mouse.x, mouse.y);
            isMoving = false;
        }
        onPositionChanged: mouse => {
            const distance = Math.max(Math.abs(mouse.x - pressedAt.x),
                                      Math.abs(mouse.y - pressedAt.y));
            if (!isMoving && distance > Qt.styleHints.startDragDistance) {
                isMoving = true;
                frame.window.startSystemMove();
            }
        }
        onDoubleClicked: frame.toggleMaximized()
    }

    Box {
        visible: !frame.fillsScreen
        anchors.fill: parent
        color: "transparent"
        borderWidth: 1
        borderColor: Theme.windowBorder
    }

    ResizeBorder {
        visible: !frame.fillsScreen
        anchors.fill: parent
        thickness: Theme.resizeBorder
        corner: frame.resizeCorner
    }

    // In the top padding of the header.
    Row {
        anchors.top: parent.top
        anchors.right: parent.right
        anchors.rightMargin: frame.resizeCorner

        WindowButton {
            label: "Minimize"
            icon: "window.minimize"
            onPressed: frame.window.showMinimized()
        }

        WindowButton {
            label: frame.fillsScreen ? "Restore" : "Maximize"
            icon: frame.fillsScreen ? "window.restore" : "window.maximize"
            onPressed: frame.toggleMaximized()
        }

        WindowButton {
            label: "Close"
            icon: "window.close"
            onPressed: frame.window.close()
        }
    }
}
