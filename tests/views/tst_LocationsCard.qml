// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Views

SettingsCardTest {
    name: "LocationsCard"

    function card() {
        return makeWide(600, component);
    }

    function test_card() {
        const view = card();
        compareCard(view, "folder", "Config File Locations", 8);
        compare(gapsIn(view), [8, 8, 8]);
    }

    function test_rows() {
        const rows = itemsOfType(card(), "ConfigLocationRow");
        compare(rows.map(row => [row.path, row.description]), [
            ["~/.config/quillmark/config.toml", "Recommended - User configuration"],
            ["/Library/Quillmark/config.toml", "macOS system configuration"],
            ["/etc/quillmark/config.toml", "System-wide configuration"]
        ]);
        for (const row of rows)
            compare(row.width, 600 - 2 * 12);
    }

    Component {
        id: component

        LocationsCard {}
    }
}
