// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/AnswerReader.h"

#include <string_view>
#include <utility>

#include "model/Codec.h"

namespace quillmark {
namespace {

namespace http = boost::beast::http;

using boost::system::error_code;

constexpr int maxInterimAnswers = 16;

// Beast 1.81 asserts that the end of a chunked body has arrived with its first line.
constexpr std::size_t lastSizeLine = std::string_view("0\r\n").size();
constexpr std::size_t shortestChunkedEnd = std::string_view("0\r\n\r\n").size();

bool exceedsLimit(const error_code& error) {
  return error == http::error::header_limit || error == http::error::body_limit;
}

}  // namespace

AnswerReader::AnswerReader(const HttpLimits& limits) : limits_(limits) { startAnswer(); }

// One byte more than the header limit, so that exceeding it is noticed.
boost::asio::mutable_buffer AnswerReader::prepare() {
  return buffer_.prepare(limits_.headerBytes + std::size_t{1} - buffer_.size());
}

void AnswerReader::parse(std::size_t count) {
  buffer_.commit(count);
  while (!isOver() && hasEnoughToParse()) {
    const bool inHeader = !parser_->is_header_done();
    error_code error;
    const std::size_t used = parser_->put(buffer_.data(), error);
    buffer_.consume(used);
    headerSize_ = inHeader ? headerSize_ + used : 0;
    const bool needsMore = error == http::error::need_more;
    // The bytes of a line that is not complete yet. While the header is read, they count as
    // part of it. Later only chunk size lines and trailers are read as lines; the limit then
    // applies to each of these alone.
    const std::size_t incomplete = needsMore ? buffer_.size() : 0;
    if (headerSize_ + incomplete > limits_.headerBytes || exceedsLimit(error)) {
      failure_ = HttpFailure::tooLarge;
    } else if (needsMore) {
      return;
    } else if (error) {
      failure_ = HttpFailure::malformed;
    } else if (parser_->is_done()) {
      endAnswer();
    } else if (inHeader) {
      // For the trailers; newer versions of Beast would count them as part of the header.
      parser_->header_limit(limits_.headerBytes);
      if (const auto length = parser_->content_length()) {
        parser_->get().body().reserve(*length + decodePadding);
      }
    }
  }
}

void AnswerReader::finish() {
  error_code error = http::error::partial_message;
  if (parser_->got_some()) {
    parser_->put_eof(error);
  }
  if (error) {
    failure_ = HttpFailure::connectionLost;
  } else {
    isDone_ = true;
  }
}

HttpResult AnswerReader::takeResult() {
  if (failure_) {
    return *failure_;
  }
  auto message = parser_->release();
  return HttpAnswer{message.result_int(), std::move(message.body())};
}

void AnswerReader::startAnswer() {
  headerSize_ = 0;
  parser_.emplace();
  parser_->header_limit(limits_.headerBytes);
  parser_->body_limit(limits_.bodyBytes);
}

void AnswerReader::endAnswer() {
  const auto& answer = parser_->get();
  // 101 is final: what follows is no longer HTTP.
  const bool isInterim =
      http::to_status_class(answer.result_int()) == http::status_class::informational &&
      answer.result() != http::status::switching_protocols;
  if (!isInterim) {
    isDone_ = true;
  } else if (++interimAnswers_ > maxInterimAnswers) {
    failure_ = HttpFailure::malformed;
  } else {
    startAnswer();
  }
}

bool AnswerReader::hasEnoughToParse() const {
  const auto size = buffer_.size();
  const bool inChunks = parser_->is_header_done() && parser_->chunked();
  const bool mayBeIncompleteEnd = size >= lastSizeLine && size < shortestChunkedEnd;
  return size > 0 && !(inChunks && mayBeIncompleteEnd);
}

}  // namespace quillmark
