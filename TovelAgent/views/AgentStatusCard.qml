// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// Shows whether the agent ran at the last probe, and starts or stops it.
SectionCard {
    id: card

    required property SettingsState settings

    readonly property color foreground: settings.isAgentRunning ? Theme.green : Theme.red

    icon: "antenna.radiowaves.left.and.right"
    title: "Agent Status"

    Row {
        spacing: Theme.spacing

        Box {
            width: 10
            height: 10
            radius: 5
            color: card.foreground
            anchors.verticalCenter: parent.verticalCenter
        }

        Label {
            text: card.settings.agentStatusLine
            size: 13
            font.weight: Font.DemiBold
            color: card.foreground
        }
    }

    Row {
        id: buttons

        readonly property real buttonWidth: (width - spacing) / 2

        width: parent.width
        spacing: 8

        ActionButton {
            width: buttons.buttonWidth
            icon: "play.fill"
            text: "Start Agent"
            padding: 8
            background: Theme.green
            onPressed: card.settings.startAgent()
        }

        ActionButton {
            width: buttons.buttonWidth
            icon: "stop.fill"
            text: "Stop Agent"
            padding: 8
            background: Theme.red
            onPressed: card.settings.stopAgent()
        }
    }
}
