// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// A plain text: markup in it is never interpreted, wherever the text comes from.
/// It wraps at the label's width.
Text {
    property int size: Theme.bodySize

    textFormat: Text.PlainText
    wrapMode: Text.Wrap
    color: Theme.text
    font.pixelSize: size
    // Without an alignment, an empty text may crash Qt 6.4: see MeasuredLabel.qml.
    horizontalAlignment: Text.AlignLeft

    Accessible.role: Accessible.StaticText
    Accessible.name: text
}
