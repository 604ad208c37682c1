// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string_view>

#include <QString>

namespace quillmark {

/// A text of the agent, which is UTF-8, as it is shown and read aloud: unchanged
/// up to 16,000 characters; of a longer one so many, and an ellipsis. Any thread.
[[nodiscard]] QString displayText(std::string_view text);

}  // namespace quillmark
