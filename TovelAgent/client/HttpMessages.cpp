// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/HttpMessages.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include <boost/beast/core/buffers_prefix.hpp>

namespace quillmark {
namespace {

namespace beast = boost::beast;
namespace http = beast::http;

using ErrorCode = boost::system::error_code;

constexpr std::size_t readSize = std::size_t{64} * 1024;
constexpr int maxInterimAnswers = 16;

// A chunked body always ends with as many bytes that only make sense together.
// The parser must not see fewer: it counts on them once it has met the last
// chunk's size.
constexpr std::size_t shortestChunkedEnd = std::string_view("0\r\n\r\n").size();

bool exceedsLimit(const ErrorCode& error) {
  return error == http::error::header_limit || error == http::error::body_limit;
}

}  // namespace

http::request<http::empty_body> requestMessage(const HttpRequest& request) {
  http::request<http::empty_body> result;
  result.method_string(request.method);
  result.target(request.target);
  result.set(http::field::host, request.host);
  result.set("X-Agent-Token", request.token);
  // Owed to the server by a client that keeps no connection.
  result.set(http::field::connection, "close");
  return result;
}

AnswerReader::AnswerReader(const HttpLimits& limits, BodySink sink)
    : limits_(limits), sink_(std::move(sink)) {
  startAnswer();
}

boost::asio::mutable_buffer AnswerReader::space() { return buffer_.prepare(readSize); }

AnswerReader::State AnswerReader::received(std::size_t count) {
  buffer_.commit(count);
  for (;;) {
    // The parser's own limit holds for what it is given at once, not for a
    // header that comes line by line; so the header is parsed alone.
    const bool inHeader = !parser_->is_header_done();
    if (!inHeader && parser_->chunked() && buffer_.size() < shortestChunkedEnd) {
      return State::wantsMore;
    }
    parser_->eager(!inHeader);
    // A chunk's line or a trailer is as short as a header, even if it came at once.
    const auto all = buffer_.size();
    const auto shown = inHeader ? all : std::min<std::size_t>(all, limits_.headerBytes);
    ErrorCode error;
    const std::size_t used = parser_->put(beast::buffers_prefix(shown, buffer_.data()), error);
    buffer_.consume(used);
    headerSize_ = inHeader ? headerSize_ + used : 0;
    const bool needsMore = error == http::error::need_more;
    if (needsMore && used > 0 && shown < all) {
      continue;
    }
    // What it then leaves is a piece of the header, a chunk's or trailer's line.
    if (headerSize_ + (needsMore ? buffer_.size() : 0) > limits_.headerBytes) {
      return fail(HttpFailure::tooLarge);
    }
    if (needsMore) {
      return State::wantsMore;
    }
    if (error) {
      return fail(exceedsLimit(error) ? HttpFailure::tooLarge : HttpFailure::malformed);
    }
    if (!parser_->is_done()) {
      if (buffer_.size() == 0) {
        return State::wantsMore;
      }
      continue;
    }
    if (!isInterim()) {
      return State::done;
    }
    if (++interimAnswers_ > maxInterimAnswers) {
      return fail(HttpFailure::malformed);
    }
    startAnswer();
  }
}

AnswerReader::State AnswerReader::ended() {
  if (!parser_->got_some()) {
    return fail(HttpFailure::brokenOff);
  }
  ErrorCode error;
  parser_->put_eof(error);
  return error ? fail(HttpFailure::brokenOff) : State::done;
}

HttpOutcome AnswerReader::outcome() const {
  if (failure_) {
    return *failure_;
  }
  return parser_->get().result_int();
}

AnswerReader::State AnswerReader::fail(HttpFailure failure) {
  failure_ = failure;
  return State::failed;
}

void AnswerReader::startAnswer() {
  headerSize_ = 0;
  parser_.emplace();
  parser_->get().body() = &sink_;
  parser_->header_limit(limits_.headerBytes);
  parser_->body_limit(limits_.bodyBytes);
}

bool AnswerReader::isInterim() const {
  const auto& answer = parser_->get();
  return http::to_status_class(answer.result_int()) == http::status_class::informational &&
         answer.result() != http::status::switching_protocols;
}

}  // namespace quillmark
