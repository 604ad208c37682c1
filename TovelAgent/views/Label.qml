// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// A text exactly as it is given: never read as rich text, whoever wrote it.
Text {
    id: label

    property int size: Theme.bodySize

    textFormat: Text.PlainText
    color: Theme.text
    font.pixelSize: size
    horizontalAlignment: Text.AlignLeft

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
