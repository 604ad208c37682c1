// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// Writes the configuration for a management server.
SectionCard {
    id: card

    required property SettingsState settings

    icon: "key.fill"
    title: "Quick Setup"
    spacing: 10

    Label {
        text: "Paste your API key from the dashboard to connect"
        size: 12
        color: Theme.gray
    }

    FormField {
        label: "Server URL"
        placeholder: card.settings.defaultServerUrl
        value: card.settings.serverUrl
        onEdited: text => card.settings.serverUrl = text
    }

    FormField {
        label: "API Key"
        placeholder: "Paste your API key here"
        value: card.settings.apiKeyInput
        echoMode: TextInput.Password
        onEdited: text => card.settings.apiKeyInput = text
    }

    ActionButton {
        width: parent.width
        enabled: card.settings.canSave
        icon: "checkmark.circle.fill"
        text: "Save & Connect"
        background: enabled ? Theme.blue : Theme.gray
        onPressed: card.settings.saveApiKey()
    }

    Label {
        width: parent.width
        text: card.settings.keyHelp
        size: 10
        color: Theme.blue
    }
}
