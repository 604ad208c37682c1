// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Views

ViewTest {
    name: "SoftShadow"

    function steps() {
        return itemsOfType(make(component, { x: 50, y: 50, width: 200, height: 100, radius: 8 }), "Rectangle");
    }

    function test_fallsOnAllSidesAlike() {
        for (const step of steps()) {
            compare(step.x + step.width / 2, 100);
            compare(step.y + step.height / 2, 50);
            compare(step.width - 200, step.height - 100);
            compare(step.radius - 8, (step.width - 200) / 2);
        }
    }

    // A blur of radius 2 has faded out within twice that.
    function test_isNarrow() {
        for (const step of steps())
            verify(step.width - 200 > 0 && step.width - 200 <= 2 * 2 * Theme.shadowRadius, step.width);
        compare(Theme.shadowRadius, 2);
    }

    function test_isBlackAndNowhereDarkerThanItsOpacity() {
        let light = 1;
        for (const step of steps()) {
            compareColor(step.color, "#000000");
            light *= 1 - step.opacity;
        }
        fuzzyCompare(Theme.shadowOpacity, 0.33, 0.0001);
        verify(light < 1, "there is a shadow");
        verify(light >= 1 - Theme.shadowOpacity, "darkness " + (1 - light));
    }

    Component {
        id: component

        SoftShadow {}
    }
}
