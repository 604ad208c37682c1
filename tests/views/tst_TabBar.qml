// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtTest
import Quillmark.Views

ViewTest {
    name: "TabBar"

    readonly property var tabs: [
        { identifier: "one", title: "First", icon: "gear" },
        { identifier: "two", title: "Second", icon: "folder" },
        { identifier: "three", title: "Third", icon: "network" }
    ]

    function bar(selectedTab) {
        const view = make(component, { width: 800, tabs: tabs, selectedTab: selectedTab });
        tapped.target = view;
        tapped.clear();
        return view;
    }

    function buttonsOf(view) {
        return itemsOfType(view, "TabButton");
    }

    function test_buttons() {
        const buttons = buttonsOf(bar("two"));
        compare(buttons.map(button => button.title), ["First", "Second", "Third"]);
        compare(buttons.map(button => button.icon), ["gear", "folder", "network"]);
        compare(buttons.map(button => button.isActive), [false, true, false]);
    }

    function test_noButtonIsActiveForAnUnknownTab_data() {
        return [{ tag: "" }, { tag: "four" }, { tag: "Two" }, { tag: "two " }];
    }

    function test_noButtonIsActiveForAnUnknownTab(data) {
        compare(buttonsOf(bar(data.tag)).map(button => button.isActive), [false, false, false]);
    }

    function test_padding() {
        const view = bar("one");
        const buttons = buttonsOf(view);
        compare(boxIn(buttons[0], view).x, 20);
        compare(boxIn(buttons[0], view).y, 12);
        compare(view.height, buttons[0].height + 2 * 12);
    }

    function test_buttonsArePackedAtTheLeft() {
        const buttons = buttonsOf(bar("one"));
        compare(roomBeside(buttons[0], buttons[1]), 0);
        compare(roomBeside(buttons[1], buttons[2]), 0);
    }

    function test_buttonsOfUnequalHeightAreCentred() {
        const buttons = buttonsOf(bar("two"));
        compare(buttons[1].height - buttons[0].height, 7);
        compareMiddleHeight(buttons[0], buttons[1]);
        compareMiddleHeight(buttons[2], buttons[1]);
    }

    function test_ground() {
        compareColor(bar("one").color, Theme.panelTint);
    }

    function test_tellsWhichTabWasTapped() {
        const view = bar("one");
        mouseClick(buttonsOf(view)[2]);
        compare(tapped.count, 1);
        compare(tapped.signalArguments[0][0], "three");
        // Which tab is selected is the owner's to say.
        compare(view.selectedTab, "one");
    }

    function test_arrowsMoveTheFocus() {
        const buttons = buttonsOf(bar("one"));
        buttons[0].forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Right);
        verify(buttons[1].activeFocus);
        keyClick(Qt.Key_Right);
        verify(buttons[2].activeFocus);
        keyClick(Qt.Key_Right);
        verify(buttons[2].activeFocus, "there is none further right");
        keyClick(Qt.Key_Left);
        verify(buttons[1].activeFocus);
        compare(tapped.count, 0);
        keyClick(Qt.Key_Space);
        compare(tapped.signalArguments[0][0], "two");
    }

    function test_accessible() {
        const view = bar("one");
        compare(view.Accessible.role, Accessible.PageTabList);
        verify(view.Accessible.name.length > 0);
    }

    Component {
        id: component

        TabBar {}
    }

    SignalSpy {
        id: tapped

        signalName: "tabTapped"
    }
}
