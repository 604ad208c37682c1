// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A list that fills the page, or a placeholder while the list has no rows. When they
/// replace each other, the keyboard focus stays in the page.
FocusScope {
    id: page

    /// The accessible name of the page.
    required property string title
    /// The accessible name of the list.
    required property string label
    /// An item model that has the property `count`.
    required property var model
    required property Component delegate
    required property Component placeholder
    /// The placeholder's text.
    property string emptyText: ""
    readonly property bool isEmpty: model.count === 0

    /// A screen reader should say `text`.
    signal announced(string text)

    Loader {
        id: content

        anchors.fill: parent
        focus: true
        // Also true while the Loader has the focus and its content has not: Qt warns if this
        // becomes false then.
        activeFocusOnTab: page.isEmpty || (activeFocus && !(item?.activeFocus ?? false))
        sourceComponent: page.isEmpty ? page.placeholder : list

        Accessible.role: Accessible.Section
        Accessible.name: page.title
        Accessible.description: page.isEmpty ? page.emptyText : ""
        Accessible.focusable: page.isEmpty
        Accessible.focused: page.isEmpty && activeFocus
    }

    FocusRing {
        target: page.isEmpty ? content : null
    }

    Component {
        id: list

        PlainList {
            focus: true
            label: page.label // qmllint disable unqualified
            model: page.model // qmllint disable unqualified
            delegate: page.delegate // qmllint disable unqualified
            onCopied: page.announced("Copied") // qmllint disable unqualified
        }
    }
}
