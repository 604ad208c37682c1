// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstdint>
#include <stdexcept>
#include <string>

#include <boost/asio/awaitable.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/system/result.hpp>

namespace quillmark {

/// One HTTP request without a body, to an IP address that is already known.
struct HttpRequest {
  boost::asio::ip::tcp::endpoint server;
  std::string host;    ///< the Host field: address and port as in the URL
  std::string method;  ///< such as "GET"
  std::string target;  ///< the path, beginning with "/"
  std::string token;   ///< the X-Agent-Token field, sent also when empty
};

/// The limits of one exchange. An exchange that exceeds one of them fails.
struct HttpLimits {
  /// From connecting to the answer's last byte.
  std::chrono::steady_clock::duration time = std::chrono::seconds(60);
  std::uint32_t headerBytes = 64 * 1024;  ///< for each: header, a chunk's size line, trailers
  std::uint64_t bodyBytes = std::uint64_t{64} * 1024 * 1024;
};

struct HttpAnswer {
  unsigned status = 0;
  std::string body;
};

/// Why there is no answer.
enum class HttpFailure {
  notConnected,    ///< no connection to the address, or too few descriptors left
  timedOut,        ///< the answer was not complete within `HttpLimits::time`
  connectionLost,  ///< the connection ended before the answer was complete
  malformed,       ///< not an HTTP answer, or more than 16 interim ones
  tooLarge,        ///< the answer is larger than `HttpLimits` allows
};

using HttpResult = boost::system::result<HttpAnswer, HttpFailure>;

/// Newer versions of Boost call this when a result is used as if it had a value.
// NOLINTNEXTLINE(readability-identifier-naming)
[[noreturn]] inline void throw_exception_from_error(const HttpFailure& /*error*/,
                                                    const boost::source_location& /*place*/) {
  throw std::logic_error("no HTTP answer");
}

/// The bytes that are sent for `request`. Any thread.
[[nodiscard]] std::string requestText(const HttpRequest& request);

/// Sends `request` over a new connection and completes with the answer, with any
/// status, or with the reason why there is no complete answer. Does not follow
/// redirects, ask for compression, cache or keep cookies. Runs on the awaiting
/// coroutine's executor and does not block it; that executor must run one handler
/// at a time, because the time limit may close the connection at any moment. Throws
/// only `std::bad_alloc`.
[[nodiscard]] boost::asio::awaitable<HttpResult> exchange(HttpRequest request, HttpLimits limits);

}  // namespace quillmark
