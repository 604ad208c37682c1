// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Settings

/// Imports a ready-made configuration, and shows what came of the last
/// operation of the whole tab.
SectionCard {
    id: card

    required property SettingsState settings

    icon: "gear"
    title: qsTr("Advanced Configuration")
    spacing: 10

    Label {
        text: qsTr("Import config.toml")
        size: 13
        font.weight: Font.DemiBold
        color: Theme.black
    }

    Label {
        text: qsTr("Select your config.toml file to configure the agent")
        size: 12
        color: Theme.gray
    }

    ActionButton {
        width: parent.width
        icon: "doc.badge.plus"
        text: qsTr("Browse and Import Config")
        ground: Theme.blue
        onPressed: card.settings.openConfigFilePicker()
    }

    NoticeRow {
        visible: card.settings.configPath.length > 0
        icon: "checkmark.circle.fill"
        text: qsTr("Selected: ") + card.settings.configFileName
        isGood: true
    }

    NoticeRow {
        visible: card.settings.statusMessage.length > 0
        icon: card.settings.showSuccess ? "checkmark.circle" : "exclamationmark.circle"
        text: card.settings.statusMessage
        isGood: card.settings.showSuccess
    }
}
