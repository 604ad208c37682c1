// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A menu with one entry, "Copy", inside its parent; created only while it is open.
/// Qt's own menu needs a style, which would be loaded for this entry alone.
Loader {
    id: menu

    /// Gets the keyboard focus back when the menu closes.
    required property Item opener
    property point place

    signal chosen

    function openAt(x: real, y: real) {
        place = Qt.point(x, y);
        active = true;
        forceActiveFocus(Qt.PopupFocusReason);
    }

    function openBelow(row: Item) {
        if (row) {
            const corner = row.mapToItem(parent, Theme.listInset, row.height);
            openAt(corner.x, corner.y);
        }
    }

    function close() {
        active = false;
        opener.focus = true;
    }

    anchors.fill: parent
    active: false
    z: 2
    // The linter accepts `menu` in here only with "pragma ComponentBehavior: Bound". With
    // that, Qt cannot create the component for another file.
    // qmllint disable unqualified
    sourceComponent: MouseArea {
        acceptedButtons: Qt.AllButtons
        hoverEnabled: true
        onPressed: menu.close()
        onWheel: menu.close()

        Accessible.ignored: true

        Box {
            x: Math.max(0, Math.min(menu.place.x, menu.width - width))
            y: Math.max(0, Math.min(menu.place.y, menu.height - height))
            width: copy.width + 2 * 4
            height: copy.height + 2 * 4
            radius: Theme.mediumRadius
            color: Theme.white
            borderWidth: 1
            borderColor: Theme.fieldBorder

            Accessible.role: Accessible.PopupMenu
            Accessible.name: "Row"

            Pressable {
                id: copy

                x: 4
                y: 4
                width: 120
                height: 32
                label: "Copy"
                focus: true
                onPressed: {
                    menu.chosen();
                    menu.close();
                }
                // The menu also closes when another item or window gets the focus.
                onActiveFocusChanged: {
                    if (!activeFocus)
                        menu.close();
                }

                // Other keys must not reach the list below the open menu.
                Keys.onPressed: event => {
                    event.accepted = true;
                    if (event.key === Qt.Key_Escape)
                        menu.close();
                }

                Accessible.role: Accessible.MenuItem

                Box {
                    anchors.fill: parent
                    radius: Theme.smallRadius
                    color: Theme.hoverBackground
                    visible: copy.hovered
                }

                Label {
                    x: 10
                    anchors.verticalCenter: parent.verticalCenter
                    text: copy.label
                    size: 13

                    Accessible.ignored: true
                }
            }
        }
    }
}
