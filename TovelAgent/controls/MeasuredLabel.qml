// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// A text that knows how wide it would be without wrapping. The `implicitWidth` of a
/// text that wraps changes a little with its width, so a width bound to it would be a
/// binding loop.
Label {
    id: label

    /// The width of its longest line, plus room for an ellipsis if lines are left out.
    /// At least 1: an elided text without a width has no height either. A long text
    /// is not measured, because that takes too long; it counts as wider than any window.
    readonly property real naturalWidth: isLong ? 100000 : Math.max(1, ruler.implicitWidth + ellipsisWidth)
    readonly property bool isLong: text.length > 2000
    readonly property real ellipsisWidth: ruler.lineCount > maximumLineCount ? size : 0

    Text {
        id: ruler

        visible: false
        textFormat: label.textFormat
        text: label.isLong ? "" : label.text
        font: label.font
        // Without an alignment, an empty text asks the input method for one. Qt 6.4
        // crashes in that call on a Wayland desktop without a keyboard.
        horizontalAlignment: Text.AlignLeft
    }
}
