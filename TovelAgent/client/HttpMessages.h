// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <optional>

#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/message.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/string_body.hpp>

#include "client/HttpExchange.h"

namespace quillmark {

/// What `request` looks like on the wire. Throws when a text is longer than a
/// message can hold.
[[nodiscard]] boost::beast::http::request<boost::beast::http::empty_body> requestMessage(
    const HttpRequest& request);

/// Collects the final answer from the bytes of one connection, however they are
/// cut into pieces; interim answers are passed over. Knows no socket.
class AnswerReader final {
 public:
  explicit AnswerReader(const HttpLimits& limits);

  enum class State { wantsMore, done, failed };

  /// Where the next bytes of the connection go.
  [[nodiscard]] boost::asio::mutable_buffer space();
  /// Takes `count` bytes that were written to `space()`.
  [[nodiscard]] State received(std::size_t count);
  /// The server will send nothing more.
  [[nodiscard]] State ended();

  /// The answer, or what kept it from coming; once, when the reading is over.
  [[nodiscard]] HttpResult takeResult();

 private:
  using Parser = boost::beast::http::response_parser<boost::beast::http::string_body>;

  [[nodiscard]] State fail(HttpFailure failure);
  void startAnswer();
  [[nodiscard]] bool isInterim() const;

  HttpLimits limits_;
  boost::beast::flat_buffer buffer_;
  std::optional<Parser> parser_;
  std::optional<HttpFailure> failure_;
  std::size_t headerSize_ = 0;
  int interimAnswers_ = 0;
};

}  // namespace quillmark
