// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtTest
import Quillmark.Controls
import "../support/qml"

ViewTest {
    name: "Pressable"

    function pressable() {
        const view = make(component, { width: 100, height: 40, label: "press" });
        pressed.target = view;
        pressed.clear();
        return view;
    }

    function ringOf(view) {
        return itemsOfType(view, "FocusRing");
    }

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

    function page() {
        const view = make(pageComponent, { width: 300, height: 200, label: "page" });
        pressed.target = itemOfType(view, "Pressable");
        pressed.clear();
        return view;
    }

    // Moves far enough to scroll the page.
    function test_moveInAPage_data() {
        return [
            { tag: "on the button", y: 90, scrolls: false, count: 1 },
            { tag: "below the button", y: 180, scrolls: true, count: 0 }
        ];
    }

    function test_moveInAPage(data) {
        const view = page();
        mousePress(view, 100, data.y);
        for (let step = 1; step <= 6; ++step)
            mouseMove(view, 100, data.y - 10 * step);
        mouseRelease(view, 100, data.y - 60);
        compare(view.contentY > 0, data.scrolls);
        compare(pressed.count, data.count);
    }

    function test_moveOfAFingerInAPage_data() {
        return test_moveInAPage_data();
    }

    function test_moveOfAFingerInAPage(data) {
        const view = page();
        const finger = touchEvent(view);
        finger.press(0, view, 100, data.y).commit();
        for (let step = 1; step <= 6; ++step) {
            finger.move(0, view, 100, data.y - 10 * step).commit();
            // Qt merges the moves between two frames into one.
            verify(waitForRendering(view, patience));
        }
        finger.release(0, view, 100, data.y - 60).commit();
        compare(view.contentY > 0, data.scrolls);
        compare(pressed.count, data.count);
    }

    function test_wheelOnAPressableScrollsThePage() {
        const view = page();
        mouseWheel(view, 100, 60, 0, -120);
        tryVerify(() => view.contentY > 0, patience);
    }

    function test_keys_data() {
        return [
            { tag: "Space", key: Qt.Key_Space, count: 1 },
            { tag: "Return", key: Qt.Key_Return, count: 1 },
            { tag: "Enter", key: Qt.Key_Enter, count: 1 },
            { tag: "a letter", key: Qt.Key_A, count: 0 }
        ];
    }

    function test_keys(data) {
        const view = pressable();
        view.forceActiveFocus(Qt.TabFocusReason);
        keyClick(data.key);
        compare(pressed.count, data.count);
    }

    function test_keysGoToTheFocusOnly() {
        pressable();
        keyClick(Qt.Key_Space);
        compare(pressed.count, 0);
    }

    function test_tabReachesIt() {
        const first = pressable();
        const second = make(component, { y: 50, width: 100, height: 40, label: "next" });
        first.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Tab);
        verify(second.activeFocus);
        keyClick(Qt.Key_Backtab);
        verify(first.activeFocus);
    }

    function test_focusIsVisible() {
        const view = pressable();
        compare(ringOf(view).length, 0);
        view.forceActiveFocus(Qt.TabFocusReason);
        const ring = ringOf(view)[0];
        verify(ring, "there is a ring");
        verify(ring.borderWidth >= 2);
        compareColor(ring.borderColor, Theme.blue);
    }

    function test_clickTakesTheFocusWithoutARing() {
        const view = pressable();
        mouseClick(view);
        verify(view.activeFocus);
        compare(ringOf(view).length, 0);
        const next = make(component, { y: 50, width: 100, height: 40, label: "next" });
        keyClick(Qt.Key_Tab);
        compare(ringOf(next).length, 1);
        keyClick(Qt.Key_Backtab);
        compare(ringOf(view).length, 1);
    }

    function test_clickDoesNotHaveToTakeTheFocus() {
        const view = pressable();
        view.takesFocus = false;
        mouseClick(view);
        compare(pressed.count, 1);
        verify(!view.activeFocus);
    }

    function test_disabled() {
        const view = pressable();
        view.enabled = false;
        mouseClick(view);
        view.Accessible.pressAction();
        compare(pressed.count, 0);
        verify(!view.activeFocus);
        verify(!view.Accessible.focusable);
        compare(view.Accessible.description, "Unavailable");
    }

    function test_hover() {
        const view = pressable();
        mouseMove(view, 10, 10);
        tryVerify(() => view.hovered, patience);
        mouseMove(view.parent, 300, 300);
        tryVerify(() => !view.hovered, patience);
    }

    function test_accessible() {
        const view = pressable();
        compare(view.Accessible.role, Accessible.Button);
        compare(view.Accessible.name, "press");
        verify(view.Accessible.focusable);
        view.Accessible.pressAction();
        compare(pressed.count, 1);
    }

    Component {
        id: component

        Pressable {}
    }

    Component {
        id: pageComponent

        ScrollPage {
            Pressable {
                width: 200
                height: 100
                label: "press"
            }

            Item {
                width: 200
                height: 600
            }
        }
    }

    SignalSpy {
        id: pressed

        signalName: "pressed"
    }
}
