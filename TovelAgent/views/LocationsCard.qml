// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick

/// Where the agent looks for its configuration.
SectionCard {
    icon: "folder"
    title: qsTr("Config File Locations")

    ConfigLocationRow {
        path: "~/.config/quillmark/config.toml"
        description: qsTr("Recommended - User configuration")
    }

    ConfigLocationRow {
        path: "/Library/Quillmark/config.toml"
        description: qsTr("macOS system configuration")
    }

    ConfigLocationRow {
        path: "/etc/quillmark/config.toml"
        description: qsTr("System-wide configuration")
    }
}
