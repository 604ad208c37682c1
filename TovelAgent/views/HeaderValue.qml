// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// What the agent says in the header: three lines at most, since the tabs below
/// must stay in reach. Assistive technology reads it whole.
MeasuredLabel {
    maximumLineCount: 3
    elide: Text.ElideRight
    font.weight: Font.DemiBold
    color: Theme.black
}
