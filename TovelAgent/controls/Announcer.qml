// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// Lets a screen reader say texts without a move of the keyboard focus.
Item {
    id: announcer

    property int next: 0

    function announce(text: string) {
        (announcements.itemAt(next) as Announcement).announce(text);
        next = (next + 1) % announcements.count;
    }

    // A screen reader asks for an item's text some time after it appears, so texts in
    // quick succession need separate items.
    Repeater {
        id: announcements

        model: 4

        Announcement {
            Accessible.role: Accessible.Notification
            Accessible.name: text
            Accessible.ignored: text === ""
        }
    }
}
