// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "client/HttpExchange.h"

namespace quillmark::doctor {

/// What became of one question.
struct Asked {
  std::optional<HttpResult> result;  ///< none when the time ran out
  std::chrono::milliseconds took{};  ///< from the beginning to the end of the exchange
};

/// How long the agent is given. The panel waits longer, but a person does not.
inline constexpr std::chrono::seconds askingTime(5);

/// Asks the agent for all `paths` at once, as the panel would with this token.
/// Returns when all are answered, after `askingTime` at the latest.
[[nodiscard]] std::vector<Asked> askAll(const std::string& token,
                                        const std::vector<std::string_view>& paths);

}  // namespace quillmark::doctor
