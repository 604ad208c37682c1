// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A list that fills the page, or a placeholder while the list has no rows.
Item {
    id: page

    required property string label
    /// An item model that has the property `count`.
    required property var model
    required property Component delegate
    required property Component placeholder

    Loader {
        anchors.fill: parent
        sourceComponent: page.model.count > 0 ? list : page.placeholder
    }

    Component {
        id: list

        PlainList {
            label: page.label // qmllint disable unqualified
            model: page.model // qmllint disable unqualified
            delegate: page.delegate // qmllint disable unqualified
        }
    }
}
