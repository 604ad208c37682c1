// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import "../support/qml"

ViewTest {
    name: "Label"

    function test_isPlainTextInTheBodyFont() {
        const label = make(component, { text: "text" });
        compareLabel(label, 13, Font.Normal, Theme.text);
    }

    function test_isReadAloudUnchanged() {
        const label = make(component, { text: "a<b && c>d" });
        compare(label.Accessible.role, Accessible.StaticText);
        compare(label.Accessible.name, "a<b && c>d");
    }

    // Right-to-left texts, too.
    function test_beginsAtTheLeft() {
        const label = make(component, { text: "שלום", width: 300 });
        compare(label.effectiveHorizontalAlignment, Text.AlignLeft);
    }

    function test_wrapsAtItsWidth_data() {
        return [{ tag: "words", text: "many words ".repeat(20) }, { tag: "one word", text: "X".repeat(200) }];
    }

    function test_wrapsAtItsWidth(data) {
        const free = make(component, { text: data.text });
        compare(free.lineCount, 1);
        const label = make(component, { text: data.text, width: free.width / 2.5 });
        compare(label.lineCount, 3);
        verify(label.contentWidth <= label.width);
    }

    function test_sizeIsInPixels() {
        compare(make(component, { text: "text", size: 32 }).font.pixelSize, 32);
    }

    Component {
        id: component

        Label {}
    }
}
