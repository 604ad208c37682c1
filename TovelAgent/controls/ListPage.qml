// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A list that fills the page, or a placeholder while the list has no rows. When they
/// replace each other, the keyboard focus stays in the page.
FocusScope {
    id: page

    /// Accessible names.
    required property string pageName
    required property string listName
    /// An item model that has the property `count`.
    required property var model
    required property Component delegate
    required property Component placeholder
    property string placeholderText: ""
    readonly property bool isEmpty: model.count === 0

    /// A screen reader should say `text`.
    signal announced(string text)

    Loader {
        id: content

        anchors.fill: parent
        focus: true
        // Stays true while the Loader itself has the focus: Qt warns if an item with the
        // focus sets this to false.
        activeFocusOnTab: page.isEmpty || (activeFocus && !(item?.activeFocus ?? false))
        sourceComponent: page.isEmpty ? page.placeholder : list

        Accessible.role: Accessible.Section
        Accessible.name: page.pageName
        Accessible.description: page.isEmpty ? page.placeholderText : ""
        // Not while the list inside has the focus: a screen reader would say both.
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
            // The linter accepts these ids only with "pragma ComponentBehavior: Bound". With
            // that, Qt cannot create delegates that come from other files.
            // qmllint disable unqualified
            label: page.listName
            model: page.model
            delegate: page.delegate
            onCopied: page.announced("Copied")
            // qmllint enable unqualified
        }
    }
}
