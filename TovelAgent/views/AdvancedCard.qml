// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// Imports a configuration file, and shows the result of the last operation of
/// the whole tab.
SectionCard {
    id: card

    required property SettingsState settings

    /// The button that opens the file dialog.
    readonly property alias browse: browse
    /// The row that shows the result of an operation.
    readonly property alias notice: notice

    icon: "gear"
    title: "Advanced Configuration"
    spacing: 10

    Label {
        text: "Import config.toml"
        size: 13
        font.weight: Font.DemiBold
    }

    Label {
        text: "Select your config.toml file to configure the agent"
        size: 12
        color: Theme.gray
    }

    ActionButton {
        id: browse

        width: parent.width
        icon: "doc.badge.plus"
        text: "Browse and Import Config"
        background: Theme.blue
        onPressed: card.settings.openConfigFilePicker()
    }

    NoticeRow {
        visible: card.settings.configPath.length > 0
        icon: "checkmark.circle.fill"
        text: card.settings.selectedFileLine
        isGood: true
    }

    NoticeRow {
        id: notice

        visible: card.settings.statusMessage.length > 0
        icon: card.settings.showSuccess ? "checkmark.circle" : "exclamationmark.circle"
        text: card.settings.statusMessage
        isGood: card.settings.showSuccess
    }
}
