// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Views

/// The window: no title bar of the desktop's, the content from edge to edge.
Window {
    id: window

    title: "Quillmark Agent"
    flags: Qt.Window | Qt.FramelessWindowHint
    width: 1000
    height: 700
    minimumWidth: 1000
    minimumHeight: 700

    ContentView {
        id: content

        anchors.fill: parent
    }

    WindowFrame {
        anchors.fill: parent
        window: window
        dragHeight: content.headerHeight
    }

    Shortcut {
        sequence: "Ctrl+W"
        onActivated: window.close()
    }

    Shortcut {
        sequence: "Ctrl+Q"
        onActivated: Qt.quit()
    }
}
