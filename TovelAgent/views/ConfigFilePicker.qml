// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Dialogs

/// The open dialog for a configuration file; the desktop's own if it has one.
FileDialog {
    title: "Select config.toml file"
    acceptLabel: "Import"
    fileMode: FileDialog.OpenFile
    nameFilters: ["Configuration files (*.toml *.txt)", "All files (*)"]
}
