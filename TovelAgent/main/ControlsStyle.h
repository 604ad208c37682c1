// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quillmark {

/// Makes Qt's own file dialog use one fixed style, whatever style the environment asks
/// for: other styles combine badly with the panel's colours, for example dark text on
/// a dark background. Call before threads start, because it changes the environment.
void setControlsStyle();

}  // namespace quillmark
