// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <optional>

#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/message.hpp>
#include <boost/beast/http/parser.hpp>

#include "client/HttpExchange.h"
#include "client/PassingBody.h"

namespace quillmark {

/// What `request` looks like on the wire. Throws when a text is longer than a
/// message can hold.
[[nodiscard]] boost::beast::http::request<boost::beast::http::empty_body> requestMessage(
    const HttpRequest& request);

/// Reads the final answer from the bytes of one connection, however they are cut
/// into pieces, and passes its body on; interim answers are passed over. Knows
/// no socket.
class AnswerReader final {
 public:
  AnswerReader(const HttpLimits& limits, BodySink sink);
  AnswerReader(const AnswerReader&) = delete;
  AnswerReader& operator=(const AnswerReader&) = delete;

  enum class State { wantsMore, done, failed };

  /// Where the next bytes of the connection go.
  [[nodiscard]] boost::asio::mutable_buffer space();
  /// Takes `count` bytes that were written to `space()`.
  [[nodiscard]] State received(std::size_t count);
  /// The server will send nothing more.
  [[nodiscard]] State ended();

  /// The answer's status, or what kept it from coming, when the reading is over.
  [[nodiscard]] HttpOutcome outcome() const;

 private:
  using Parser = boost::beast::http::response_parser<PassingBody>;

  [[nodiscard]] State fail(HttpFailure failure);
  void startAnswer();
  [[nodiscard]] bool isInterim() const;

  HttpLimits limits_;
  BodySink sink_;
  boost::beast::flat_buffer buffer_;
  std::optional<Parser> parser_;
  std::optional<HttpFailure> failure_;
  std::size_t headerSize_ = 0;
  int interimAnswers_ = 0;
};

}  // namespace quillmark
