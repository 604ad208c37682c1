// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// The buttons to minimise, maximise or restore, and close the window, in the
/// top padding of the header.
Row {
    id: controls

    required property bool isMaximized

    signal minimizePressed
    signal maximizePressed
    signal closePressed

    WindowButton {
        label: "Minimize"
        icon: "window.minimize"
        onPressed: controls.minimizePressed()
    }

    WindowButton {
        label: controls.isMaximized ? "Restore" : "Maximize"
        icon: controls.isMaximized ? "window.restore" : "window.maximize"
        onPressed: controls.maximizePressed()
    }

    WindowButton {
        label: "Close"
        icon: "window.close"
        onPressed: controls.closePressed()
    }
}
