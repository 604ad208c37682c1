// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls
import Quillmark.ViewModel

/// The agent's state in numbers.
ScrollPage {
    id: tab

    required property DashboardViewModel viewModel

    label: "Dashboard"

    Repeater {
        model: tab.viewModel.statsCards

        StatsCard {
            required property statsCard card

            width: parent?.width ?? 0
            title: card.title
            value: card.value
        }
    }
}
