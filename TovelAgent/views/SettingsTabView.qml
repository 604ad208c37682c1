// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// Starts and stops the agent, and writes or imports its configuration.
/// Its state is kept only while the tab is shown.
FocusScope {
    id: tab

    /// A screen reader should say `text`.
    signal announced(string text)

    Rectangle {
        anchors.fill: parent
        color: Theme.panelTint
    }

    SettingsState {
        id: settings

        Component.onCompleted: refresh()
        onPickerRequested: {
            if (picker.status === Loader.Null)
                picker.setSource("ConfigFilePicker.qml", { settings: settings, opener: advanced.browse });
        }
        onStatusMessageChanged: {
            page.reveal(advanced.notice);
            tab.announced(statusMessage);
        }
        onAgentProbed: tab.announced(agentStatusLine)
    }

    ScrollPage {
        id: page

        anchors.fill: parent
        focus: true
        label: "Settings"

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

    // Created on demand, because a dialog costs more than the whole tab. It opens itself.
    Loader {
        id: picker
    }
}
