// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quillmark {

/// Keeps the look of Qt's own file dialog, whatever style of controls the
/// environment asks for: others mix badly with the panel, dark on dark.
/// To be called before any view is made; UI thread.
void fixControlsStyle();

}  // namespace quillmark
