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

    /// Selects the tab at `index`; the keyboard focus follows if it is in the bar. An
    /// index out of range has no effect.
    function choose(index: int) {
        const tab = tabs[index];
        if (!tab)
            return;
        tabChosen(tab.identifier);
        // After the selection, or a screen reader would say "Selected" twice.
        if (focusedIndex() >= 0 && focusedIndex() !== index)
            buttons.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
    }

    /// The index of the tab that has the keyboard focus; -1 if none has it.
    function focusedIndex(): int {
        return tabs.findIndex((_, index) => buttons.itemAt(index)?.activeFocus);
    }

    implicitHeight: row.height + 2 * 12
    color: Theme.panelTint

    Keys.onLeftPressed: choose(focusedIndex() - 1)
    Keys.onRightPressed: choose(focusedIndex() + 1)
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Home || event.key === Qt.Key_End;
        if (event.accepted)
            choose(event.key === Qt.Key_Home ? 0 : tabs.length - 1);
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
                onPressed: bar.choose(index)

                Shortcut {
                    sequence: "Ctrl+" + (button.index + 1)
                    onActivated: button.pressed()
                }
            }
        }
    }
}
