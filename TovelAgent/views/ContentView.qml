// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import QtQuick.Window
import Quillmark.ViewModel

/// The root view: header, tab bar, and the selected tab's view. It keeps the
/// window's view model and selected tab.
Item {
    id: root

    readonly property alias viewModel: reference.viewModel
    property string selectedTab: "dashboard"
    readonly property alias headerHeight: headerBand.height

    readonly property var tabs: [
        { identifier: "dashboard", title: "Dashboard", icon: "square.grid.2x2" },
        { identifier: "network", title: "Network", icon: "network" },
        { identifier: "inventory", title: "Inventory", icon: "rectangle.stack" },
        { identifier: "alerts", title: "Alerts", icon: "bell.badge" },
        { identifier: "settings", title: "Settings", icon: "gear" }
    ]

    readonly property bool onScreen: Window.visibility !== Window.Hidden

    onOnScreenChanged: {
        if (onScreen)
            viewModel.startPolling();
    }

    DashboardViewModelRef {
        id: reference
    }

    Rectangle {
        id: headerBand

        width: parent.width
        height: header.height + 2 * 20
        color: Theme.white
        // The shadow falls on what lies below.
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
        onTabTapped: identifier => root.selectedTab = identifier
    }

    Item {
        anchors.top: tabBar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        clip: true

        // A Loader of Qt 6.4 refuses components that are bound to their ids.
        // qmllint disable unqualified
        Loader {
            anchors.fill: parent
            active: root.selectedTab === "dashboard"
            sourceComponent: DashboardTabView {
                viewModel: root.viewModel
            }
        }

        Loader {
            anchors.fill: parent
            active: root.selectedTab === "network"
            sourceComponent: NetworkTabView {
                viewModel: root.viewModel
            }
        }

        Loader {
            anchors.fill: parent
            active: root.selectedTab === "inventory"
            sourceComponent: InventoryTabView {
                viewModel: root.viewModel
            }
        }

        Loader {
            anchors.fill: parent
            active: root.selectedTab === "alerts"
            sourceComponent: AlertsTabView {
                viewModel: root.viewModel
            }
        }

        Loader {
            anchors.fill: parent
            active: root.selectedTab === "settings"
            sourceComponent: SettingsTabView {}
        }
        // qmllint enable unqualified
    }
}
