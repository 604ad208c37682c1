// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// Lists places where a configuration of the agent may be, on any system. The panel
/// itself writes only the first one.
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
