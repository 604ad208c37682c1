// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "client/HttpExchange.h"

namespace quillmark {

/// Where the agent serves its interface; a path follows directly.
inline constexpr auto agentBaseUrl = "http://127.0.0.1:7823";

// What it can be asked for.
inline constexpr std::string_view statusPath = "/api/status";
inline constexpr std::string_view alertsPath = "/api/alerts";
inline constexpr std::string_view networkPath = "/api/network";
inline constexpr std::string_view inventoryPath = "/api/inventory";

/// The parts of `url` that a request needs, its method and token left empty; no
/// value if it is no URL that names an IPv4 address and a port. No name is ever
/// looked up. Any thread.
[[nodiscard]] std::optional<HttpRequest> requestTo(const std::string& url);

}  // namespace quillmark
