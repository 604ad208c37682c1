// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// Brings the agent up and down, enrols the machine, and imports a
/// configuration. Its state lives as long as the tab is shown.
Rectangle {
    id: tab

    color: Theme.panelTint

    SettingsState {
        id: settings

        Component.onCompleted: appear()
        onPickerRequested: picker.setSource("ConfigFilePicker.qml", {
            settings: settings,
            opener: advanced.browse
        })
        onStatusChanged: page.reveal(advanced.notice)
    }

    ScrollPage {
        id: page

        anchors.fill: parent
        label: "Settings"
        spacing: 20

        AgentStatusCard {
            settings: settings
        }

        QuickSetupCard {
            settings: settings
        }

        AdvancedCard {
            id: advanced

            settings: settings
        }

        LocationsCard {}
    }

    // Only made when asked for: a dialog costs more than the whole tab.
    Loader {
        id: picker
    }
}
