// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import "../support/qml"

ViewTest {
    name: "SoftShadow"

    /// The colours from the middle of each side outwards.
    function sides() {
        const view = make(component);
        const image = grabImage(view);
        const shadow = boxIn(view.children[0], view);
        const distances = Array.from({ length: 8 }, (_, i) => i);
        const middle = Qt.point(shadow.x + shadow.width / 2, shadow.y + shadow.height / 2);
        return [
            distances.map(far => image.pixel(shadow.left - 1 - far, middle.y)),
            distances.map(far => image.pixel(shadow.right + far, middle.y)),
            distances.map(far => image.pixel(middle.x, shadow.top - 1 - far)),
            distances.map(far => image.pixel(middle.x, shadow.bottom + far))
        ];
    }

    function test_isTheSameOnAllSides() {
        const [first, ...others] = sides();
        for (const other of others)
            compare(other, first);
    }

    // A blur of radius 2 has faded out within twice that.
    function test_fadesAndIsNarrow() {
        compare(Theme.shadowRadius, 2);
        const reach = 2 * Theme.shadowRadius;
        const side = sides()[0];
        for (let far = 1; far <= reach; ++far)
            verify(side[far].r > side[far - 1].r, "fainter at " + far);
        for (const shade of side.slice(reach))
            compareColor(shade, "white");
    }

    function test_isBlackAndNowhereDarkerThanItsOpacity() {
        fuzzyCompare(Theme.shadowOpacity, 0.33, 0.0001);
        for (const shade of sides()[0]) {
            verify(shade.r === shade.g && shade.g === shade.b, shade);
            verify(shade.r >= 1 - Theme.shadowOpacity, shade);
        }
    }

    Component {
        id: component

        Rectangle {
            width: 300
            height: 200
            color: "white"

            SoftShadow {
                x: 50
                y: 50
                width: 200
                height: 100
                radius: 8
            }
        }
    }
}
