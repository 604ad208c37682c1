// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Dialogs

/// The open dialog for a configuration file; the desktop's own if it has one.
FileDialog {
    title: qsTr("Select config.toml file")
    acceptLabel: qsTr("Import")
    fileMode: FileDialog.OpenFile
    nameFilters: [qsTr("Configuration files (*.toml *.txt)"), qsTr("All files (*)")]
}
