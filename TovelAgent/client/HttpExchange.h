// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include <boost/asio/awaitable.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/system/result.hpp>

namespace quillmark {

/// One bodiless HTTP request to a fixed address.
struct HttpRequest {
  boost::asio::ip::tcp::endpoint server;
  std::string host;    ///< the Host field: address and port as in the URL
  std::string method;  ///< such as "GET"
  std::string target;  ///< the path, beginning with "/"
  std::string token;   ///< the X-Agent-Token field, sent also when empty
};

/// What an exchange may cost. Beyond any of these there is no answer.
struct HttpLimits {
  /// From connecting to the answer's last byte.
  std::chrono::steady_clock::duration time = std::chrono::seconds(60);
  std::uint32_t headerBytes = 64 * 1024;
  std::uint64_t bodyBytes = std::uint64_t{64} * 1024 * 1024;
};

struct HttpAnswer {
  unsigned status = 0;
  std::string body;
};

/// Why there is no answer.
enum class HttpFailure {
  notConnected,  ///< nobody takes connections at the address
  timedOut,      ///< the answer was not whole within `HttpLimits::time`
  brokenOff,     ///< the connection ended before the answer did
  malformed,     ///< what came is no HTTP answer
  tooLarge,      ///< more came than `HttpLimits` allows
};

using HttpResult = boost::system::result<HttpAnswer, HttpFailure>;

/// What `request` looks like on the wire. Any thread.
[[nodiscard]] std::string requestText(const HttpRequest& request);

/// Sends `request` over a connection of its own and completes with the answer,
/// whatever its status is, or with what kept it from coming whole. Follows no
/// redirect, asks for no compression, keeps nothing. Runs on the awaiting
/// coroutine's executor, which may have several threads, and blocks none of them.
/// Throws `std::bad_alloc` only.
[[nodiscard]] boost::asio::awaitable<HttpResult> exchange(HttpRequest request, HttpLimits limits);

}  // namespace quillmark
