// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.Views

/// The layout of the root view; tabs and polling have their own tests.
PolledViewTest {
    name: "ContentView"

    readonly property var tabViews: ["DashboardTabView", "NetworkTabView", "InventoryTabView",
                                     "AlertsTabView", "SettingsTabView"]

    function content() {
        return makePolling(component, { width: 1000, height: 700 });
    }

    /// The white band around the header.
    function bandOf(view) {
        return itemOfType(view, "HeaderView").parent;
    }

    /// The names of the tab views that exist, visible or not.
    function tabViewsIn(item) {
        let found = tabViews.filter(name => isOfType(item, name));
        for (const child of Array.from(item.children))
            found = found.concat(tabViewsIn(child));
        return found;
    }

    function test_header() {
        const view = content();
        const band = bandOf(view);
        const header = itemOfType(view, "HeaderView");
        compare(boxIn(band, view), Qt.rect(0, 0, 1000, header.height + 2 * 20));
        compare(boxIn(header, band), Qt.rect(20, 20, 1000 - 2 * 20, header.height));
        compare(header.height, header.implicitHeight);
        compareColor(band.color, Theme.white);
    }

    function test_headerHasAShadowOnTheViewBelow() {
        const view = content();
        const band = bandOf(view);
        const shadow = itemsOfType(band, "SoftShadow")[0];
        compare(boxIn(shadow, view), boxIn(band, view));
        verify(band.z > itemOfType(view, "TabBar").z);
        const picture = grabImage(view);
        const below = picture.pixel(500, band.height);
        verify(below.r < Theme.panelTint.r, "darker just below the band: " + below);
        compareColor(picture.pixel(500, band.height - 1), Theme.white);
        compareColor(picture.pixel(500, band.height + 8), picture.pixel(500, band.height + 9));
    }

    function test_tabBar() {
        const view = content();
        const bar = itemOfType(view, "TabBar");
        compare(boxIn(bar, view), Qt.rect(0, bandOf(view).height, 1000, bar.height));
        compare(bar.height, bar.implicitHeight);
        const buttons = itemsOfType(bar, "TabButton");
        compare(buttons.map(button => button.title), ["Dashboard", "Network", "Inventory", "Alerts", "Settings"]);
        compare(buttons.map(button => button.icon),
                ["square.grid.2x2", "network", "rectangle.stack", "bell.badge", "gear"]);
        compare(buttons.map(button => button.isActive), [true, false, false, false, false]);
    }

    function test_opensOnTheDashboard() {
        const view = content();
        compare(view.selectedTab, "dashboard");
        compare(tabViewsIn(view), ["DashboardTabView"]);
    }

    function test_contentFillsTheRest() {
        const view = content();
        for (const [width, height] of [[1000, 700], [1500, 900]]) {
            view.width = width;
            view.height = height;
            const bar = boxIn(itemOfType(view, "TabBar"), view);
            const tab = itemOfType(view, "DashboardTabView");
            compare(boxIn(tab, view), Qt.rect(0, bar.bottom, width, height - bar.bottom));
        }
    }

    function test_onlyTheSelectedTabExists_data() {
        return tabViews.map(name => ({ tag: name.replace("TabView", "").toLowerCase(), view: name }));
    }

    function test_onlyTheSelectedTabExists(data) {
        const view = content();
        view.selectedTab = data.tag;
        tryVerify(() => tabViewsIn(view).length === 1, patience);
        compare(tabViewsIn(view), [data.view]);
        compare(itemsOfType(view, "TabButton").filter(button => button.isActive).length, 1);
    }

    function test_anUnknownTabIsEmpty_data() {
        return [{ tag: "" }, { tag: "unknown" }, { tag: "Dashboard" }, { tag: "network " }];
    }

    function test_anUnknownTabIsEmpty(data) {
        const view = content();
        view.selectedTab = data.tag;
        tryVerify(() => tabViewsIn(view).length === 0, patience);
        verify(itemOfType(view, "HeaderView"));
        const buttons = itemsOfType(view, "TabButton");
        compare(buttons.length, tabViews.length);
        compare(buttons.filter(button => button.isActive), []);
    }

    Component {
        id: component

        ContentView {}
    }
}
