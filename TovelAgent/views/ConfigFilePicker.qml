// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Dialogs
import Quillmark.ViewModel

/// The open dialog for a configuration file; the desktop's own if it has one. Opens when
/// it is created and again on request: Qt frees its own dialog only with the window.
FileDialog {
    id: picker

    required property SettingsState settings
    /// Gets the keyboard focus when the dialog closes; after Qt's own dialog no item
    /// would have it.
    required property Item opener

    title: "Select config.toml file"
    acceptLabel: "Import"
    fileMode: FileDialog.OpenFile
    nameFilters: ["Configuration files (*.toml *.txt)", "All files (*)"]
    onAccepted: settings.fileChosen(selectedFile)
    onVisibleChanged: {
        if (!visible)
            opener.forceActiveFocus();
    }

    Component.onCompleted: open()

    Connections {
        target: picker.settings

        function onPickerRequested() {
            picker.open();
        }
    }
}
