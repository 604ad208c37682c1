// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// A text that knows how wide it would be without wrapping. The `implicitWidth` of a
/// text that wraps changes a little with its width, so a width bound to it would be a
/// binding loop.
Label {
    id: label

    /// The width of the longest line near the beginning, with room for the ellipsis
    /// after the last one. At least 1: an elided text without a width has no height
    /// either.
    readonly property real naturalWidth: Math.max(1, ruler.implicitWidth + ellipsisWidth)
    readonly property real ellipsisWidth: ruler.lineCount > maximumLineCount ? size : 0

    Text {
        id: ruler

        visible: false
        textFormat: label.textFormat
        // Measuring a very long text takes too long.
        text: label.text.slice(0, 2000)
        font: label.font
        // Without an alignment, an empty text asks the input method for one. Qt 6.4
        // crashes in that call on a Wayland desktop without a keyboard.
        horizontalAlignment: Text.AlignLeft
    }
}
