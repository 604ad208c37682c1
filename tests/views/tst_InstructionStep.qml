// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views
import "../support/qml"

ViewTest {
    name: "InstructionStep"

    function step(properties) {
        return make(component, Object.assign({ width: 300, number: "2", title: "Title", description: "Description" }, properties));
    }

    function circleOf(view) {
        return itemOfType(view, "Box");
    }

    function test_number() {
        const view = step();
        const circle = circleOf(view);
        compare([circle.width, circle.height, circle.radius], [24, 24, 12]);
        compareColor(circle.color, Theme.blue);
        const number = labelOf(view, "2");
        compareLabel(number, 12, Font.Bold, Theme.white);
        compareMiddleHeight(number, circle);
        const box = boxIn(number, circle);
        verify(Math.abs(box.x + box.width / 2 - 12) <= 0.5, "in the middle of the circle");
    }

    function test_texts() {
        const view = step();
        compareLabel(labelOf(view, "Title"), 12, Font.DemiBold, Theme.black);
        compareLabel(labelOf(view, "Description"), 11, Font.Normal, Theme.gray);
    }

    function test_layout() {
        const view = step();
        const circle = circleOf(view);
        const title = labelOf(view, "Title");
        const description = labelOf(view, "Description");
        compare(boxIn(circle, view), Qt.rect(0, 0, 24, 24));
        compare(roomBeside(circle, title), 10);
        compare(boxIn(title, view).y, 0);
        compare(boxIn(description, view).x, boxIn(title, view).x);
        compare(roomBelow(title, description), 2);
        compare(view.height, Math.max(24, title.height + 2 + description.height));
    }

    function test_longTextsWrap() {
        const view = step({ description: "word ".repeat(50) });
        const description = labelOf(view, view.description);
        verify(description.lineCount > 3);
        verify(!description.truncated);
        compare(boxIn(description, view).right, 300);
        compare(view.height, boxIn(description, view).bottom);
        compare(boxIn(circleOf(view), view).y, 0, "aligned at the top");
    }

    Component {
        id: component

        InstructionStep {}
    }
}
