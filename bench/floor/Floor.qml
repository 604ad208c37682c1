// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

Window {
    width: 1000
    height: 700
    visible: true

    Grid {
        columns: 4

        Repeater {
            model: 24

            Text {
                required property int index
                width: 240
                height: 100
                text: "Text number " + index
                textFormat: Text.PlainText
            }
        }
    }
}
