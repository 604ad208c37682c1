// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import "../support/qml"

ViewTest {
    name: "SymbolIcon"

    function test_isDrawnInItsColour_data() {
        return ["#0b5fd9", "#c4232b", "#000000"].map(color => ({ tag: color }));
    }

    function test_isDrawnInItsColour(data) {
        const icon = make(component, { name: "stop.fill", size: 40, color: data.tag });
        compare(icon.status, Image.Ready);
        const picture = grabImage(icon);
        compareColor(picture.pixel(icon.width / 2, icon.height / 2), data.tag);
        compareColor(picture.pixel(0, 0), "#ffffff");
    }

    function test_growsWithItsSize() {
        const sides = [12, 13, 14, 16, 24, 40].map(size => {
            const icon = make(component, { name: "gear", size: size });
            compare(icon.width, icon.height);
            // An even width puts straight strokes on whole pixels.
            compare(icon.width % 2, 0);
            return icon.width;
        });
        compare(sides, sides.slice().sort((a, b) => a - b));
        for (const [index, size] of [12, 13, 14, 16, 24, 40].entries())
            verify(sides[index] >= size && sides[index] <= 1.4 * size, sides[index] + " for " + size);
    }

    Component {
        id: component

        SymbolIcon {}
    }
}
