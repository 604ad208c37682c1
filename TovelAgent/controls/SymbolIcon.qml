// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// The icon of a symbolic name, sized to match text of pixel size `size`.
/// Not in the accessible tree: what it means must be in the name of an item around it.
Image {
    id: icon

    required property string name
    property int size: Theme.bodySize
    property color color: Theme.text

    // About 1.2 times the text's size, and even: at a scale of 1 the straight strokes then lie
    // on whole pixels.
    readonly property int side: 2 * Math.round(0.6 * size)

    width: side
    height: side
    sourceSize.width: side
    sourceSize.height: side
    source: IconUrl.of(name, color)
}
