// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>

#include <boost/asio/awaitable.hpp>
#include <boost/asio/ip/tcp.hpp>

namespace quillmark {

/// One bodiless HTTP request to a fixed address.
struct HttpRequest {
  boost::asio::ip::tcp::endpoint server;
  std::string host;    ///< the Host field: address and port as in the URL
  std::string method;  ///< such as "GET"
  std::string target;  ///< the path, beginning with "/"
  std::string token;   ///< the X-Agent-Token field, sent also when empty
};

/// What an answer may cost. Beyond any of these there is no body.
struct HttpLimits {
  std::chrono::steady_clock::duration silence = std::chrono::seconds(60);  ///< between two bytes
  std::uint32_t headerBytes = 64 * 1024;
  std::uint64_t bodyBytes = std::uint64_t{256} * 1024 * 1024;
};

/// Sends `request` over a connection of its own and completes with the body of
/// the answer, whatever its status, or with no value when the transfer fails
/// in any way. Follows no redirect, asks for no compression, keeps nothing.
/// Runs on the awaiting coroutine's executor, which may have several threads,
/// and blocks none of them.
[[nodiscard]] boost::asio::awaitable<std::optional<std::string>> exchange(HttpRequest request,
                                                                          HttpLimits limits);

}  // namespace quillmark
