// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtTest
import Quillmark.Controls
import "../support/qml"

ViewTest {
    name: "ScrollPage"

    function page(contentHeight) {
        const view = make(component, { width: 400, height: 300, boxHeight: contentHeight });
        view.forceActiveFocus(Qt.TabFocusReason);
        return view;
    }

    function test_contentIsPadded() {
        const view = page(1000);
        const box = itemsOfType(view, "Rectangle").filter(item => item.height === 1000)[0];
        compare(boxIn(box, view), Qt.rect(20, 20, 400 - 2 * 20, 1000));
        compare(view.contentHeight, 1000 + 2 * 20);
        compare(view.contentWidth, 400);
    }

    function test_keysScroll_data() {
        return [
            { tag: "Down", key: Qt.Key_Down, from: 0, to: 40 },
            { tag: "Down at the end", key: Qt.Key_Down, from: 730, to: 740 },
            { tag: "Up", key: Qt.Key_Up, from: 100, to: 60 },
            { tag: "Up at the top", key: Qt.Key_Up, from: 10, to: 0 },
            { tag: "Page Down", key: Qt.Key_PageDown, from: 0, to: 260 },
            { tag: "Page Up", key: Qt.Key_PageUp, from: 500, to: 240 },
            { tag: "Home", key: Qt.Key_Home, from: 500, to: 0 },
            { tag: "End", key: Qt.Key_End, from: 0, to: 740 }
        ];
    }

    function test_keysScroll(data) {
        const view = page(1000);
        view.contentY = data.from;
        keyClick(data.key);
        compare(view.contentY, data.to);
    }

    function test_tabReachesItOnlyWhenItScrolls() {
        verify(page(1000).activeFocusOnTab);
        verify(!make(component, { width: 400, height: 300, boxHeight: 100 }).activeFocusOnTab);
    }

    function test_accessible() {
        const view = page(1000);
        compare(view.Accessible.role, Accessible.Section);
        compare(view.Accessible.name, "Page");
        verify(view.activeFocusOnTab);
        verify(view.activeFocus);
        verify(!make(component, { width: 400, height: 300, boxHeight: 100 }).activeFocusOnTab);
    }

    function test_focusIsVisible() {
        const view = page(1000);
        compare(itemsOfType(view, "FocusRing").length, 1);
        view.focus = false;
        compare(itemsOfType(view, "FocusRing"), []);
    }

    // Neither the ring nor the bar may scroll away.
    function test_ringStaysInView() {
        const view = page(1000);
        view.contentY = 500;
        compare(boxIn(itemOfType(view, "FocusRing"), view), Qt.rect(1, 1, 398, 298));
    }

    Component {
        id: component

        ScrollPage {
            label: "Page"

            property alias boxHeight: box.height

            Rectangle {
                id: box

                width: parent.width
            }
        }
    }
}
