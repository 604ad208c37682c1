// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Settings

/// Brings the agent up and down, enrols the machine, and imports a
/// configuration. Its state lives as long as the tab is shown.
Rectangle {
    id: tab

    color: Theme.panelTint

    SettingsState {
        id: settings

        Component.onCompleted: appear()
        onPickerRequested: {
            if (picker.active)
                picker.item.open();
            picker.active = true;
        }
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

        active: false
        source: "ConfigFilePicker.qml"
        onLoaded: item.open()
    }

    Connections {
        target: picker.item

        function onAccepted() {
            settings.fileChosen(picker.item.selectedFile);
        }

        // Qt's own dialog leaves the keyboard with nobody.
        function onVisibleChanged() {
            if (!picker.item.visible) {
                advanced.browse.forceActiveFocus();
            }
        }
    }
}
