// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views

/// The window, without the desktop's title bar: its content fills it completely.
Window {
    id: window

    objectName: "main"
    title: "Quillmark Agent"
    width: 1000
    height: 700
    minimumWidth: 1000
    minimumHeight: 700
    // For Qt's own file dialog, which uses this colour on a pale background: its selected row
    // would be white on light blue.
    palette.highlightedText: Theme.text
    // For the same dialog: its disabled controls would be light gray on a lighter gray.
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
