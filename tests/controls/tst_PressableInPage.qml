// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

PressableTest {
    name: "PressableInPage"

    function page() {
        const view = make(pageComponent, { width: 300, height: 200, label: "page" });
        count(itemOfType(view, "Pressable"));
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
}
