// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A value from the agent in the header: at most three lines, so that the
/// tabs below stay inside the window. Assistive technology reads the whole text.
MeasuredLabel {
    property string value

    // Three lines never have room for more, and Qt would lay out the rest to leave it out.
    text: value.slice(0, 4000)
    Accessible.name: value

    maximumLineCount: 3
    elide: Text.ElideRight
    font.weight: Font.DemiBold
}
