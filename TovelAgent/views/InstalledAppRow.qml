// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// The name of an application and, where known, its version.
Column {
    id: row

    required property appPresentation app

    spacing: 4

    Label {
        width: parent.width
        text: row.app.name
        size: 13
        font.weight: Font.DemiBold
    }

    Label {
        visible: row.app.hasVersion
        width: parent.width
        text: row.app.version
        size: 11
        color: Theme.gray
    }
}
