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

        ElidedLabel {
            maximumWidth: endpoints.width
            text: row.connection.localEndpoint
            size: 13
            font.weight: Font.DemiBold
        }

        ElidedLabel {
            maximumWidth: endpoints.width
            text: row.connection.remoteEndpoint
            size: 12
            color: Theme.gray
        }
    }

    ElidedLabel {
        id: state

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        maximumWidth: row.width / 2
        text: row.connection.state
        size: 11
        color: Theme.blue
    }
}
