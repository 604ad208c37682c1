// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// The root view: header, tab bar, and the selected tab's view. It owns the
/// window's view model and selected tab.
Item {
    id: root

    readonly property alias viewModel: reference.viewModel
    property string selectedTab: "dashboard"
    readonly property alias headerHeight: headerBand.height

    readonly property var tabs: [
        { identifier: "dashboard", title: "Dashboard", icon: "square.grid.2x2", view: "DashboardTabView.qml", needsViewModel: true },
        { identifier: "network", title: "Network", icon: "network", view: "NetworkTabView.qml", needsViewModel: true },
        { identifier: "inventory", title: "Inventory", icon: "rectangle.stack", view: "InventoryTabView.qml", needsViewModel: true },
        { identifier: "alerts", title: "Alerts", icon: "bell.badge", view: "AlertsTabView.qml", needsViewModel: true },
        { identifier: "settings", title: "Settings", icon: "gear", view: "SettingsTabView.qml", needsViewModel: false }
    ]

    readonly property bool isShown: Window.visibility !== Window.Hidden

    /// Selects a tab that the user chose. Its content gets the keyboard focus if the
    /// previous tab's content had it.
    function showTab(identifier: string) {
        if (identifier === selectedTab)
            return;
        const hadFocus = content.activeFocus;
        // Not while the focus is in the tab bar: a screen reader then says the tab by itself.
        // Announced before the focus moves, so that it says the focused item last.
        if (tabBar.focusedIndex() < 0)
            announcer.announce(tabs.find(tab => tab.identifier === identifier).title + " tab");
        selectedTab = identifier;
        if (hadFocus)
            content.item.forceActiveFocus();
    }

    onIsShownChanged: {
        if (isShown)
            viewModel.startPolling();
    }

    DashboardViewModelRef {
        id: reference
    }

    Announcer {
        id: announcer
    }

    StatusAnnouncements {
        viewModel: root.viewModel
        isWindowActive: root.Window.active
        onAnnounced: text => announcer.announce(text)
    }

    Rectangle {
        id: headerBand

        width: parent.width
        height: header.height + 2 * 20
        color: Theme.white
        // Draws the shadow over the items below the header.
        z: 1

        SoftShadow {
            anchors.fill: parent
            z: -1
        }

        HeaderView {
            id: header

            x: 20
            y: 20
            width: parent.width - 2 * 20
            status: root.viewModel.status
        }
    }

    TabBar {
        id: tabBar

        anchors.top: headerBand.bottom
        width: parent.width
        tabs: root.tabs
        selectedTab: root.selectedTab
        onTabChosen: identifier => root.showTab(identifier)
    }

    Item {
        anchors.top: tabBar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        clip: true

        // Loaded by file name, so that a tab costs nothing until it is selected.
        Loader {
            id: content

            readonly property var tab: root.tabs.find(tab => tab.identifier === root.selectedTab)

            anchors.fill: parent
            onTabChanged: setSource(tab?.view ?? "", tab?.needsViewModel ? { viewModel: root.viewModel } : {})

            Connections {
                target: content.item
                // The dashboard has no such signal.
                ignoreUnknownSignals: true

                function onAnnounced(text) {
                    announcer.announce(text);
                }
            }
        }
    }
}
