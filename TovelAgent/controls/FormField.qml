// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A label above a text field.
Column {
    id: field

    required property string label
    required property string placeholder
    required property string value
    property alias echoMode: input.echoMode

    signal edited(string text)

    width: parent?.width ?? 0

    // Qt passes the property `text` to assistive technology, even for a masked field. So the
    // field below declares its own `text`, with the displayed characters; `realText` is
    // TextInput's.
    component Input: TextInput {
        id: input

        property alias realText: input.text
    }

    Column {
        width: parent.width
        spacing: 4

        // Qt gives a masked field no name, so a group around it has the label as its name. Not
        // the root item: Qt treats the property `value` of an accessible item as a number.
        Accessible.role: Accessible.Grouping
        Accessible.name: field.label
        Accessible.ignored: !input.isMasked

        Label {
            text: field.label
            size: 11
            font.weight: Font.DemiBold
            color: Theme.gray
        }

        Box {
            width: parent.width
            height: input.implicitHeight
            radius: Theme.mediumRadius
            color: Theme.white
            borderWidth: input.activeFocus ? 2 : 1
            borderColor: input.activeFocus ? Theme.blue : Theme.fieldBorder

            Input {
                id: input

                property string text: displayText

                readonly property bool isMasked: echoMode !== TextInput.Normal
                // For a screen reader that does not read the text from the field. Set only when the
                // focus changes: while the user types, every change would be spoken.
                property string textAtFocus: ""

                onActiveFocusChanged: textAtFocus = ScreenReader.readsFieldTexts ? "" : displayText

                anchors.fill: parent
                topPadding: 6
                bottomPadding: 6
                leftPadding: 8
                rightPadding: 8
                clip: true
                font.pixelSize: 12
                color: Theme.text
                selectionColor: Theme.blue
                selectedTextColor: Theme.white
                selectByMouse: true
                activeFocusOnTab: true
                realText: field.value
                onTextEdited: {
                    // Pasted text may contain line breaks, which would end the value in the file.
                    // Removed in one step: each change lays out the whole text again.
                    const line = realText.replace(/[\r\n]/g, "");
                    if (line !== realText) {
                        remove(0, length);
                        insert(0, line);
                    }
                    field.edited(realText);
                }

                Accessible.role: Accessible.EditableText
                Accessible.name: field.label
                Accessible.description: hint.visible ? field.placeholder : isMasked ? "Filled in" : textAtFocus
                Accessible.passwordEdit: isMasked
            }

            Label {
                id: hint

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
}
