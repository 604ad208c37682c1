// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

#include <QString>

namespace quillmark {

/// Converts UTF-8 text of the agent for display and screen readers, within `ScriptLimits`.
/// Text is cut after 16,000 code points, or after 3,000 changes between scripts and kinds of
/// symbols, and then gets an ellipsis. UI thread.
[[nodiscard]] QString displayText(std::string_view text);

}  // namespace quillmark
