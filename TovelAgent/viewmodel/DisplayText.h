// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

#include <QString>

namespace quillmark {

/// Converts UTF-8 text of the agent for display and screen readers, within `ScriptLimits`. A
/// text that was not shown before may lose something until the next `Turns::eased`.
/// Characters that no font has become U+FFFD. Text that takes longer to lay out than 16,000
/// Latin characters is cut there, and gets an ellipsis. UI thread.
[[nodiscard]] QString displayText(std::string_view text);

}  // namespace quillmark
