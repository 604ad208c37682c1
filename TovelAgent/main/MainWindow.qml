// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views

/// The window: no title bar of the desktop's, the content from edge to edge.
Window {
    id: window

    objectName: "main"
    title: "Quillmark Agent"
    width: 1000
    height: 700
    minimumWidth: 1000
    minimumHeight: 700
    // Qt's own file dialog lays this colour, meant for a strong ground, onto a
    // pale one: its chosen row would be white on light blue.
    palette.highlightedText: Theme.text
    // And what it disables would be a light gray on a lighter one.
    palette.disabled.buttonText: Theme.gray

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
