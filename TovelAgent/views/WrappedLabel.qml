// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

import QtQuick
import Quillmark.Views

/// A text that goes on in the next line where its width ends.
Label {
    wrapMode: LineBreaking.hasEndlessWord(text) ? Text.WrapAnywhere : Text.Wrap
}
