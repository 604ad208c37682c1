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

/// How one query ended.
struct QueryResult {
  std::optional<HttpResult> result;      ///< no value: timed out
  std::chrono::milliseconds duration{};  ///< of the exchange
};

/// How long to wait for the agent. The panel waits longer; a person at a terminal does not.
inline constexpr std::chrono::seconds queryTimeout(5);

/// Sends the panel's request for each of `paths` to the agent, with this token. All run
/// at the same time; the panel sends one after another. Returns the results in the order
/// of `paths`, after `queryTimeout` at the latest.
[[nodiscard]] std::vector<QueryResult> queryAgent(const std::string& token,
                                                  const std::vector<std::string_view>& paths);

}  // namespace quillmark::doctor
