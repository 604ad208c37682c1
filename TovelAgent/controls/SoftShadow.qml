// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// The shadow of a box with the same geometry and corner radius.
Box {
    color: Qt.alpha(Theme.shadow, Theme.shadowOpacity)
    shadowBlur: Theme.shadowRadius
}
