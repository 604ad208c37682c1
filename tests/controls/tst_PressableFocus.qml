// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

PressableTest {
    name: "PressableFocus"

    function ringOf(view) {
        return itemsOfType(view, "FocusRing");
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
        const second = pressable({ y: 50 });
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
        const next = pressable({ y: 50 });
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
        verify(!view.activeFocusOnTab);
        compare(view.Accessible.description, "Unavailable");
    }

    function test_accessible() {
        const view = pressable();
        compare(view.Accessible.role, Accessible.Button);
        compare(view.Accessible.name, "press");
        verify(view.activeFocusOnTab);
        view.Accessible.pressAction();
        compare(pressed.count, 1);
    }
}
