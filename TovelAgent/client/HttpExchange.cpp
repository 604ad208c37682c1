// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/HttpExchange.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

#include <boost/asio/co_spawn.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/strand.hpp>
#include <boost/asio/this_coro.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/core/tcp_stream.hpp>
#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/string_body.hpp>
#include <boost/beast/http/write.hpp>

namespace quillmark {
namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;

using ErrorCode = boost::system::error_code;
using Parser = http::response_parser<http::string_body>;

constexpr std::size_t readSize = std::size_t{64} * 1024;
constexpr int maxInterimAnswers = 16;

http::request<http::empty_body> message(const HttpRequest& request) {
  http::request<http::empty_body> result;
  result.method_string(request.method);
  result.target(request.target);
  result.set(http::field::host, request.host);
  result.set("X-Agent-Token", request.token);
  // Owed to the server by a client that keeps no connection.
  result.set(http::field::connection, "close");
  return result;
}

/// Collects the final answer from the bytes of one connection.
class AnswerReader final {
 public:
  explicit AnswerReader(const HttpLimits& limits) : limits_(limits) { startAnswer(); }

  enum class State { wantsMore, done, failed };

  /// Where the next bytes of the connection go.
  [[nodiscard]] auto space() { return buffer_.prepare(readSize); }

  /// Takes `count` bytes that were written to `space()`.
  [[nodiscard]] State received(std::size_t count) {
    buffer_.commit(count);
    for (;;) {
      // The parser's own limit holds for what it is given at once, not for a
      // header that comes line by line; so the header is parsed alone.
      const bool inHeader = !parser_->is_header_done();
      parser_->eager(!inHeader);
      ErrorCode error;
      const std::size_t used = parser_->put(buffer_.data(), error);
      buffer_.consume(used);
      headerSize_ = inHeader ? headerSize_ + used : 0;
      const bool needsMore = error == http::error::need_more;
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

  /// The server will send nothing more.
  [[nodiscard]] State ended() {
    if (!parser_->got_some()) {
      return fail(HttpFailure::brokenOff);
    }
    ErrorCode error;
    parser_->put_eof(error);
    return !error && parser_->is_done() ? State::done : fail(HttpFailure::brokenOff);
  }

  /// To be called once, when the reading is over.
  [[nodiscard]] HttpResult takeResult() {
    if (failure_) {
      return *failure_;
    }
    auto& answer = parser_->get();
    return HttpAnswer{answer.result_int(), std::move(answer.body())};
  }

 private:
  [[nodiscard]] State fail(HttpFailure failure) {
    failure_ = failure;
    return State::failed;
  }

  [[nodiscard]] static bool exceedsLimit(const ErrorCode& error) {
    return error == http::error::header_limit || error == http::error::body_limit;
  }

  void startAnswer() {
    headerSize_ = 0;
    parser_.emplace();
    parser_->header_limit(limits_.headerBytes);
    parser_->body_limit(limits_.bodyBytes);
  }

  [[nodiscard]] bool isInterim() const {
    const auto& answer = parser_->get();
    return http::to_status_class(answer.result_int()) == http::status_class::informational &&
           answer.result() != http::status::switching_protocols;
  }

  HttpLimits limits_;
  beast::flat_buffer buffer_;
  std::optional<Parser> parser_;
  std::optional<HttpFailure> failure_;
  std::size_t headerSize_ = 0;
  int interimAnswers_ = 0;
};

HttpFailure failureOf(const ErrorCode& error, HttpFailure otherwise) {
  return error == beast::error::timeout ? HttpFailure::silent : otherwise;
}

/// `exchange`, on an executor that runs one handler at a time: a stream whose
/// time runs out closes itself, wherever the coroutine is at that moment.
asio::awaitable<HttpResult> exchangeSerially(HttpRequest request, HttpLimits limits) {
  ErrorCode error;
  // A named token: GCC 12 destroys temporaries inside a co_await twice.
  auto completion = asio::redirect_error(asio::use_awaitable, error);
  const auto executor = co_await asio::this_coro::executor;
  beast::tcp_stream stream(executor);

  stream.expires_after(limits.silence);
  co_await stream.async_connect(request.server, completion);
  if (error) {
    co_return failureOf(error, HttpFailure::notConnected);
  }

  const auto outgoing = message(request);
  stream.expires_after(limits.silence);
  co_await http::async_write(stream, outgoing, completion);
  if (error) {
    co_return failureOf(error, HttpFailure::brokenOff);
  }

  AnswerReader answer(limits);
  auto state = AnswerReader::State::wantsMore;
  while (state == AnswerReader::State::wantsMore) {
    const auto space = answer.space();
    stream.expires_after(limits.silence);
    const std::size_t count = co_await stream.async_read_some(space, completion);
    if (error && error != asio::error::eof) {
      co_return failureOf(error, HttpFailure::brokenOff);
    }
    state = error ? answer.ended() : answer.received(count);
  }
  co_return answer.takeResult();
}

}  // namespace

asio::awaitable<HttpResult> exchange(HttpRequest request, HttpLimits limits) {
  const auto executor = co_await asio::this_coro::executor;
  auto serial = exchangeSerially(std::move(request), limits);
  auto completion =
      asio::co_spawn(asio::make_strand(executor), std::move(serial), asio::use_awaitable);
  co_return co_await std::move(completion);
}

}  // namespace quillmark
