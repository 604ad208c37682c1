// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Templates as T

/// A label above a text field.
Column {
    id: field

    required property string label
    required property string placeholder
    required property string value
    property alias echoMode: input.echoMode

    signal edited(string text)

    width: parent?.width ?? 0
    spacing: 4

    Label {
        text: field.label
        size: 11
        font.weight: Font.DemiBold
        color: Theme.gray
    }

    component Entry: T.TextField {
        id: entry

        property alias content: entry.text
    }

    Entry {
        id: input

        // Qt hands assistive technology whatever `text` is, also of a masked
        // field. There it shall be what everyone sees.
        property string text: displayText

        width: parent.width
        implicitHeight: contentHeight + topPadding + bottomPadding
        topPadding: 6
        bottomPadding: 6
        leftPadding: 8
        rightPadding: 8
        font.pixelSize: 12
        color: Theme.text
        selectionColor: Theme.blue
        selectedTextColor: Theme.white
        selectByMouse: true
        content: field.value
        onTextEdited: field.edited(content)
        // Drawn below; this one is told to assistive technology alone.
        placeholderText: field.placeholder

        Accessible.name: field.label

        background: Rectangle {
            radius: Theme.sectionRadius
            color: Theme.white
            border.width: input.activeFocus ? 2 : 1
            border.color: input.activeFocus ? Theme.blue : Theme.fieldBorder
        }

        Label {
            visible: input.length === 0 && input.preeditText.length === 0
            x: input.leftPadding
            y: input.topPadding
            text: field.placeholder
            size: 12
            color: Theme.gray

            Accessible.ignored: true
        }
    }
}
