// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// Lists places where the agent may look for a configuration, on any system. The panel
/// writes only the first one; which files it reads back says `configSearchPaths()`.
SectionCard {
    icon: "folder"
    title: "Config File Locations"

    // Not Grouping: Orca 43 would first read some of the rows' texts together.
    Accessible.role: Accessible.List

    ConfigLocationRow {
        path: "~/.config/quillmark/config.toml"
        description: "Recommended - User configuration"
    }

    ConfigLocationRow {
        path: "/Library/Quillmark/config.toml"
        description: "macOS system configuration"
    }

    ConfigLocationRow {
        path: "/etc/quillmark/config.toml"
        description: "System-wide configuration"
    }
}
