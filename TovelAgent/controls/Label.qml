// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// A text exactly as it is given: never read as rich text, whoever wrote it. It
/// goes on in the next line where the width that it is given ends.
Text {
    id: label

    property int size: Theme.bodySize

    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    color: Theme.text
    font.pixelSize: size
    horizontalAlignment: Text.AlignLeft

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
