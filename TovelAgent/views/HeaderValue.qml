// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Controls

/// A value from the agent in the header: at most three lines, so that the
/// tabs below stay inside the window. Assistive technology reads the whole text.
MeasuredLabel {
    maximumLineCount: 3
    elide: Text.ElideRight
    font.weight: Font.DemiBold
}
