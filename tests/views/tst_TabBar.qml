// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtTest
import Quillmark.Controls
import Quillmark.Views
import "../support/qml"

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

    function test_reportsWhichTabWasTapped() {
        const view = bar("one");
        mouseClick(buttonsOf(view)[2]);
        compare(tapped.count, 1);
        compare(tapped.signalArguments[0][0], "three");
        // The owner decides which tab is selected.
        compare(view.selectedTab, "one");
    }

    function tappedTabs() {
        return Array.from(tapped.signalArguments).map(args => args[0]);
    }

    function test_keysMoveTheFocusAndChoose_data() {
        return [
            { tag: "right", from: 0, key: Qt.Key_Right, to: 1, chosen: ["two"] },
            { tag: "left", from: 2, key: Qt.Key_Left, to: 1, chosen: ["two"] },
            { tag: "none further right", from: 2, key: Qt.Key_Right, to: 2, chosen: [] },
            { tag: "none further left", from: 0, key: Qt.Key_Left, to: 0, chosen: [] },
            { tag: "to the last", from: 0, key: Qt.Key_End, to: 2, chosen: ["three"] },
            { tag: "to the first", from: 2, key: Qt.Key_Home, to: 0, chosen: ["one"] },
            { tag: "any other key", from: 1, key: Qt.Key_F5, to: 1, chosen: [] }
        ];
    }

    function test_keysMoveTheFocusAndChoose(data) {
        const buttons = buttonsOf(bar("one"));
        buttons[data.from].forceActiveFocus(Qt.TabFocusReason);
        keyClick(data.key);
        compare(buttons.findIndex(button => button.activeFocus), data.to);
        compare(tappedTabs(), data.chosen);
    }

    function test_neighbours_data() {
        return [
            { tag: "next", selected: "one", key: Qt.Key_PageDown, chosen: ["two"] },
            { tag: "previous", selected: "three", key: Qt.Key_PageUp, chosen: ["two"] },
            { tag: "none after the last", selected: "three", key: Qt.Key_PageDown, chosen: [] },
            { tag: "none before the first", selected: "one", key: Qt.Key_PageUp, chosen: [] },
            { tag: "the first if none is selected", selected: "four", key: Qt.Key_PageDown, chosen: ["one"] },
            { tag: "nothing if none is selected", selected: "four", key: Qt.Key_PageUp, chosen: [] }
        ];
    }

    // Independent of the focus.
    function test_neighbours(data) {
        bar(data.selected);
        keyClick(data.key, Qt.ControlModifier);
        compare(tappedTabs(), data.chosen);
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

        signalName: "tabChosen"
    }
}
