// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

PressableTest {
    name: "Pressable"

    function test_click() {
        mouseClick(pressable());
        compare(pressed.count, 1);
    }

    function test_clickBeside() {
        const view = pressable();
        mouseClick(view.parent, view.width + 50, 20);
        compare(pressed.count, 0);
    }

    // From the middle of the button's left half; each move is relative to that.
    function test_pointer_data() {
        return [
            { tag: "moves inside", moves: [[10, 5], [25, 12], [40, -10]], count: 1 },
            { tag: "leaves", moves: [[0, 60]], count: 0 },
            { tag: "leaves by a few pixels", moves: [[0, 21]], count: 0 },
            { tag: "leaves and returns", moves: [[0, 60], [5, 60], [5, 5]], count: 1 }
        ];
    }

    function test_pointer(data) {
        const view = pressable();
        mousePress(view, 25, 20);
        for (const [x, y] of data.moves)
            mouseMove(view, 25 + x, 20 + y);
        compare(pressed.count, 0, "not before its release");
        const [x, y] = data.moves[data.moves.length - 1];
        mouseRelease(view, 25 + x, 20 + y);
        compare(pressed.count, data.count);
    }

    function test_finger(data) {
        const view = pressable();
        const finger = touchEvent(view);
        finger.press(0, view, 25, 20).commit();
        for (const [x, y] of data.moves)
            finger.move(0, view, 25 + x, 20 + y).commit();
        compare(pressed.count, 0, "not before its release");
        const [x, y] = data.moves[data.moves.length - 1];
        finger.release(0, view, 25 + x, 20 + y).commit();
        compare(pressed.count, data.count);
    }

    function test_finger_data() {
        return test_pointer_data().concat([{ tag: "taps", moves: [[0, 0]], count: 1 }]);
    }

    // A press becomes a long press only after this time.
    function waitForLongPress() {
        wait(Qt.styleHints.mousePressAndHoldInterval + 200);
    }

    function test_held() {
        const view = pressable();
        mousePress(view);
        waitForLongPress();
        mouseRelease(view);
        compare(pressed.count, 1);
    }

    function test_heldByAFinger() {
        const view = pressable();
        const finger = touchEvent(view);
        finger.press(0, view, 25, 20).commit();
        waitForLongPress();
        finger.release(0, view, 25, 20).commit();
        compare(pressed.count, 1);
    }

    function test_everyQuickTapIsAClick() {
        const view = pressable();
        const finger = touchEvent(view);
        for (let i = 0; i < 5; ++i) {
            finger.press(0, view, 25, 20).commit();
            finger.release(0, view, 25, 20).commit();
        }
        compare(pressed.count, 5);
    }

    function test_doubleClickIsTwoClicks() {
        mouseDoubleClickSequence(pressable());
        compare(pressed.count, 2);
    }

    function test_otherButtons_data() {
        return [{ tag: "right", button: Qt.RightButton }, { tag: "middle", button: Qt.MiddleButton }];
    }

    function test_otherButtons(data) {
        mouseClick(pressable(), 25, 20, data.button);
        compare(pressed.count, 0);
    }

    function test_hover() {
        const view = pressable();
        mouseMove(view, 10, 10);
        tryVerify(() => view.hovered, patience);
        mouseMove(view.parent, 300, 300);
        tryVerify(() => !view.hovered, patience);
    }
}
