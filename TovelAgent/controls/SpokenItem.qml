// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// Texts that take the keyboard focus together, so that a screen reader reads them as one.
/// Do not make it the root of a component that has a property `value`: Qt treats that
/// property of an accessible item as a number that can be set.
Item {
    id: item

    /// What a screen reader says in place of the texts.
    required property string label
    property string description: ""
    property alias focusInset: ring.inset

    activeFocusOnTab: true

    // Not Grouping: Orca 48 would say the description or the texts twice.
    Accessible.role: Accessible.Section
    Accessible.name: label
    Accessible.description: description

    FocusRing {
        id: ring

        target: item
    }
}
