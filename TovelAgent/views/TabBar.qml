// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

pragma ComponentBehavior: Bound

import QtQuick
import Quillmark.Controls

/// The row of tabs. Each of `tabs` has `identifier`, `title` and `icon`.
Rectangle {
    id: bar

    required property var tabs
    required property string selectedTab

    signal tabChosen(string identifier)

    readonly property int selectedIndex: tabs.findIndex(tab => tab.identifier === selectedTab)

    function choose(index: int) {
        const tab = tabs[index];
        if (tab)
            tabChosen(tab.identifier);
    }

    /// Moves the keyboard focus to the tab at `index` and selects it. An index out
    /// of range has no effect.
    function focusAndChoose(index: int) {
        const button = buttons.itemAt(index);
        if (button) {
            button.forceActiveFocus(Qt.TabFocusReason);
            choose(index);
        }
    }

    function focusedIndex(): int {
        return tabs.findIndex((_, index) => buttons.itemAt(index).activeFocus);
    }

    implicitHeight: row.height + 2 * 12
    color: Theme.panelTint

    Keys.onLeftPressed: focusAndChoose(focusedIndex() - 1)
    Keys.onRightPressed: focusAndChoose(focusedIndex() + 1)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (event.accepted)
            focusAndChoose(event.key === Qt.Key_Home ? 0 : tabs.length - 1);
    }

    Accessible.role: Accessible.PageTabList
    Accessible.name: "Tabs"

    Shortcut {
        sequence: "Ctrl+PgUp"
        onActivated: bar.choose(bar.selectedIndex - 1)
    }

    Shortcut {
        sequence: "Ctrl+PgDown"
        onActivated: bar.choose(bar.selectedIndex + 1)
    }

    Row {
        id: row

        x: 20
        y: 12

        Repeater {
            id: buttons

            model: bar.tabs

            TabButton {
                id: button

                required property var modelData
                required property int index

                title: modelData.title
                icon: modelData.icon
                isActive: bar.selectedTab === modelData.identifier
                anchors.verticalCenter: parent?.verticalCenter
                onPressed: bar.tabChosen(modelData.identifier)

                Shortcut {
                    sequence: "Ctrl+" + (button.index + 1)
                    onActivated: button.pressed()
                }
            }
        }
    }
}
