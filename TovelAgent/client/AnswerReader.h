// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <optional>

#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/string_body.hpp>

#include "client/HttpExchange.h"

namespace quillmark {

/// Parses the final answer from the bytes of one connection, in pieces of any size;
/// interim answers (1xx except 101) are skipped. Does not use a socket.
///
/// Beast's own `async_read` (1.81) is not enough. Its header limit is not applied
/// to lines that arrive one by one. It asserts that the end of a chunked body
/// arrives in one piece. When a growing body runs out of memory, the exception
/// reaches the executor instead of the awaiting coroutine and ends the process.
class AnswerReader final {
 public:
  explicit AnswerReader(const HttpLimits& limits);

  /// Where the next bytes of the connection go.
  [[nodiscard]] boost::asio::mutable_buffer prepare();
  /// Parses `count` bytes that were written to `prepare()`. Throws `std::bad_alloc`.
  void parse(std::size_t count);
  /// Call when the server will send no more bytes.
  void finish();

  /// Whether the answer is complete or has failed.
  [[nodiscard]] bool isOver() const { return isDone_ || failure_; }
  /// The answer, or why it failed. Call once, when `isOver()`.
  [[nodiscard]] HttpResult takeResult();

 private:
  using Parser = boost::beast::http::response_parser<boost::beast::http::string_body>;

  void startAnswer();
  void endAnswer();
  [[nodiscard]] bool hasEnoughToParse() const;

  HttpLimits limits_;
  boost::beast::flat_buffer buffer_;
  std::optional<Parser> parser_;
  std::optional<HttpFailure> failure_;
  bool isDone_ = false;
  std::size_t headerSize_ = 0;  ///< bytes of the header parsed so far; 0 after it
  int interimAnswers_ = 0;
};

}  // namespace quillmark
