// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "client/HttpExchange.h"

namespace quillmark {

/// The URL of the agent's HTTP server; append a path that begins with a slash.
inline constexpr auto agentBaseUrl = "http://127.0.0.1:7823";

// The paths that the agent serves.
inline constexpr std::string_view statusPath = "/api/status";
inline constexpr std::string_view alertsPath = "/api/alerts";
inline constexpr std::string_view networkPath = "/api/network";
inline constexpr std::string_view inventoryPath = "/api/inventory";

/// The request for `url`, an http URL with an IPv4 address, a port and a path; the caller
/// sets the method and the token. No value if the port is missing, or if the host is not an
/// IPv4 address, because names are never looked up. Any thread.
[[nodiscard]] std::optional<HttpRequest> requestTo(const std::string& url);

}  // namespace quillmark
