// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

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

/// What an answer may cost. Beyond any of these there is none.
struct HttpLimits {
  std::chrono::steady_clock::duration silence = std::chrono::seconds(60);  ///< between two bytes
  std::uint32_t headerBytes = 64 * 1024;
  std::uint64_t bodyBytes = std::uint64_t{256} * 1024 * 1024;
};

struct HttpAnswer {
  unsigned status = 0;
  std::string body;
};

/// Why there is no answer.
enum class HttpFailure {
  notConnected,  ///< nobody takes connections at the address
  silent,        ///< not a byte came for as long as `HttpLimits` allows
  brokenOff,     ///< the connection ended before the answer did
  malformed,     ///< what came is no HTTP answer
  tooLarge,      ///< more came than `HttpLimits` allows
};

/// The answer's status.
using HttpOutcome = boost::system::result<unsigned, HttpFailure>;
using HttpResult = boost::system::result<HttpAnswer, HttpFailure>;

/// Takes a body as it comes, piece by piece. `left` more bytes are announced, or
/// nobody knows how many. What it throws ends the exchange.
using BodySink = std::function<void(std::string_view piece, std::optional<std::size_t> left)>;

/// Sends `request` over a connection of its own and completes with the answer's
/// status, whatever it is, or with what kept the answer from coming whole: then
/// what `sink` took is of no use. Follows no redirect, asks for no compression,
/// keeps nothing. Runs on the awaiting coroutine's executor, which may have
/// several threads, and blocks none of them. Throws `std::bad_alloc`, and
/// `std::length_error` for a token that is longer than a header field may be.
[[nodiscard]] boost::asio::awaitable<HttpOutcome> exchange(HttpRequest request, HttpLimits limits,
                                                           BodySink sink);

/// The same, for who wants the body whole.
[[nodiscard]] boost::asio::awaitable<HttpResult> exchange(HttpRequest request, HttpLimits limits);

}  // namespace quillmark
