// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// The product's name, the agent's status and the time of its last scan.
Item {
    id: header

    required property statusPresentation status

    readonly property real widthWithoutGap: width - Theme.blockGap

    implicitHeight: Math.max(left.height, right.height)

    Column {
        id: left

        // The width that this block takes if nothing in it wraps.
        readonly property real naturalWidth: Math.max(titles.width, badges.naturalWidth)

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: header.widthWithoutGap - (header.status.isConnected ? Math.max(lastScanTitle.width, lastScan.width) : 0)
        spacing: 8

        Row {
            id: titles

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
                }

                Label {
                    text: "Endpoint Detection & Response"
                    size: 12
                    color: Theme.gray
                }
            }
        }

        Row {
            id: badges

            readonly property real naturalWidth: statusBadge.implicitWidth + spacing + threatsBadge.implicitWidth

            spacing: 20

            StatusBadge {
                id: statusBadge

                maximumWidth: left.width - badges.spacing - threatsBadge.width
                title: "Status"
                value: header.status.status
                isHealthy: header.status.statusIsHealthy
            }

            StatusBadge {
                id: threatsBadge

                title: "Threats"
                value: header.status.threats
                isHealthy: header.status.hasNoThreats
            }
        }
    }

    Column {
        id: right

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        spacing: 8
        visible: header.status.isConnected

        Label {
            id: lastScanTitle

            anchors.right: parent.right
            text: "Last Scan"
            size: 11
            color: Theme.gray
        }

        HeaderValue {
            id: lastScan

            anchors.right: parent.right
            // When both blocks do not fit, each may use at least half of the width.
            width: Math.min(naturalWidth, Math.max(header.widthWithoutGap / 2, header.widthWithoutGap - left.naturalWidth))
            text: header.status.lastScan
            size: 13
            horizontalAlignment: Text.AlignRight
        }
    }
}
