// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views

/// Choosing a tab by pointer and keyboard.
PolledViewTest {
    name: "TabSwitching"

    readonly property var identifiers: ["dashboard", "network", "inventory", "alerts", "settings"]

    property Item content: null

    function open() {
        content = makePolling(component, { width: 1000, height: 700 });
    }

    function button(identifier) {
        return itemsOfType(content, "TabButton")[identifiers.indexOf(identifier)];
    }

    function underlined() {
        return itemsOfType(content, "TabButton")
            .filter(one => itemsOfType(one, "Box").some(bar => bar.height === 3))
            .map(one => one.title);
    }

    function test_click_data() {
        return identifiers.map(identifier => ({ tag: identifier }));
    }

    function test_click(data) {
        open();
        content.selectedTab = "";
        mouseClick(button(data.tag));
        compare(content.selectedTab, data.tag);
        compare(underlined(), [button(data.tag).title]);
    }

    function test_clickChangesTheLook() {
        open();
        mouseClick(button("alerts"));
        compareColor(labelOf(button("alerts"), "Alerts").color, Theme.blue);
        compareColor(labelOf(button("dashboard"), "Dashboard").color, Theme.gray);
        compare(underlined(), ["Alerts"]);
        verify(itemOfType(content, "AlertsTabView"));
        compare(itemsOfType(content, "DashboardTabView"), []);
    }

    function test_clickOnTheActiveTabChangesNothing() {
        open();
        const view = itemOfType(content, "DashboardTabView");
        mouseClick(button("dashboard"));
        compare(content.selectedTab, "dashboard");
        compare(itemOfType(content, "DashboardTabView"), view);
    }

    function test_clickBesideTheTabsChangesNothing() {
        open();
        const bar = itemOfType(content, "TabBar");
        mouseClick(bar, bar.width - 50, bar.height / 2);
        compare(content.selectedTab, "dashboard");
    }

    function test_shortcuts_data() {
        return identifiers.map((identifier, index) => ({ tag: identifier, key: Qt.Key_1 + index }));
    }

    function test_shortcuts(data) {
        open();
        content.selectedTab = "";
        keyClick(data.key, Qt.ControlModifier);
        compare(content.selectedTab, data.tag);
    }

    // Tab moves the focus from the tabs into the list, which the keys then scroll.
    function test_tabMovesTheFocusIntoTheContent() {
        backend.answer("/api/network", backend.connectionsBody(100, "LISTEN"));
        open();
        content.selectedTab = "network";
        poll(content.viewModel);
        const lastTab = button(identifiers[identifiers.length - 1]);
        lastTab.forceActiveFocus(Qt.TabFocusReason);
        keyClick(Qt.Key_Tab);
        const list = itemOfType(content, "PlainList");
        verify(list.activeFocus);
        keyClick(Qt.Key_PageDown);
        verify(list.contentY > list.originY);
        keyClick(Qt.Key_Backtab);
        verify(lastTab.activeFocus);
    }

    Component {
        id: component

        ContentView {}
    }
}
