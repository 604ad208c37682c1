// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// Both ends of a connection, and at the right its state, in at most half of the row.
Item {
    id: row

    required property connectionPresentation connection

    readonly property real widthWithoutGap: width - Theme.blockGap

    implicitHeight: Math.max(endpoints.height, stateLabel.height) + 2 * 8

    Column {
        id: endpoints

        anchors.verticalCenter: parent.verticalCenter
        width: row.widthWithoutGap - stateLabel.width
        spacing: 4

        Label {
            width: parent.width
            text: row.connection.localEndpoint
            size: 13
            font.weight: Font.DemiBold
        }

        Label {
            width: parent.width
            text: row.connection.remoteEndpoint
            size: 12
            color: Theme.gray
        }
    }

    MeasuredLabel {
        id: stateLabel

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(naturalWidth, row.widthWithoutGap / 2)
        text: row.connection.state
        size: 11
        horizontalAlignment: Text.AlignRight
        color: Theme.blue
    }
}
