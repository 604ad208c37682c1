// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quillmark {

/// Fixes the style of Qt's own file dialog, whatever style the environment asks
/// for: other styles mix badly with the panel, as dark on dark. Call before
/// threads start, because it changes the environment.
void fixControlsStyle();

}  // namespace quillmark
