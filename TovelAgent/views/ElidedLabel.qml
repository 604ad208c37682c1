// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// A text for a place that does not grow: one line, cut off at `maximumWidth`.
/// Assistive technology reads it whole.
Label {
    property real maximumWidth: Infinity

    width: Math.min(implicitWidth, maximumWidth)
    maximumLineCount: 1
    wrapMode: Text.WrapAnywhere
    elide: Text.ElideRight
}
