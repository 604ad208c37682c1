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

/// Reads the final answer from the bytes of one connection, however they are cut
/// into pieces; interim answers are passed over. Knows no socket.
///
/// Beast's own `async_read` is not enough (1.81): its limit of a header does not
/// hold for lines that come one by one, it asserts that the end of a chunked body
/// comes in one piece, and what a growing body throws for want of memory ends the
/// process, since it reaches the executor and not the awaiting coroutine.
class AnswerReader final {
 public:
  explicit AnswerReader(const HttpLimits& limits);

  /// Where the next bytes of the connection go.
  [[nodiscard]] boost::asio::mutable_buffer space();
  /// Takes `count` bytes that were written to `space()`. Throws `std::bad_alloc`.
  void received(std::size_t count);
  /// The server will send nothing more.
  void ended();

  /// Whether the answer has come, or cannot come any more.
  [[nodiscard]] bool isOver() const { return isDone_ || failure_; }
  /// The answer, or what kept it from coming, when the reading is over; once.
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
  std::size_t headerSize_ = 0;
  int interimAnswers_ = 0;
};

}  // namespace quillmark
