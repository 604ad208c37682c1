// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.ViewModel

/// Who this is, how the agent is doing, and when it last looked.
Item {
    id: header

    required property statusPresentation status

    implicitWidth: left.width + Theme.spacing + right.width
    implicitHeight: Math.max(left.height, right.height)

    Column {
        id: left

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8

        Row {
            spacing: 12

            SymbolIcon {
                name: "shield.fill"
                size: 24
                color: Theme.blue
                anchors.verticalCenter: parent.verticalCenter
            }

            Column {
                spacing: Theme.spacing

                Label {
                    text: "Quillmark Agent"
                    size: 20
                    font.weight: Font.Bold
                    color: Theme.black
                }

                Label {
                    text: "Endpoint Detection & Response"
                    size: 12
                    color: Theme.gray
                }
            }
        }

        Row {
            spacing: 20

            StatusBadge {
                title: "Status"
                value: header.status.status
                isHealthy: header.status.statusIsHealthy
            }

            StatusBadge {
                title: "Threats"
                value: header.status.threats
                isHealthy: header.status.threatsAreHealthy
            }
        }
    }

    Column {
        id: right

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8
        visible: header.status.hasLastScan

        Label {
            anchors.right: parent.right
            text: "Last Scan"
            size: 11
            color: Theme.gray
        }

        ElidedLabel {
            anchors.right: parent.right
            text: header.status.lastScan
            size: 13
            font.weight: Font.DemiBold
            color: Theme.black
            maximumWidth: Theme.headerTextWidth
        }
    }
}
