// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// The shadow of a box of corner radius `radius` that fills the same place.
Box {
    color: Qt.alpha(Theme.shadow, Theme.shadowOpacity)
    softness: Theme.shadowRadius
}
