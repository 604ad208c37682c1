// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.ViewModel

/// Both ends of a connection, and its state at the right.
Item {
    id: row

    required property connectionPresentation connection

    implicitHeight: Math.max(endpoints.height, state.height) + 2 * 8

    Column {
        id: endpoints

        y: 8
        width: state.x - Theme.spacing
        spacing: 4

        WrappedLabel {
            width: parent.width
            text: row.connection.localEndpoint
            size: 13
            font.weight: Font.DemiBold
        }

        WrappedLabel {
            width: parent.width
            text: row.connection.remoteEndpoint
            size: 12
            color: Theme.gray
        }
    }

    WrappedLabel {
        id: state

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, row.width / 2)
        text: row.connection.state
        size: 11
        color: Theme.blue
        horizontalAlignment: Text.AlignRight
    }
}
