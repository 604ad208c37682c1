// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "client/HttpExchange.h"

#include <cstddef>

#include <boost/asio/redirect_error.hpp>
#include <boost/asio/this_coro.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/asio/write.hpp>
#include <boost/beast/core/tcp_stream.hpp>

#include "client/AnswerReader.h"
#include "platform/ProcessLimits.h"

namespace quillmark {
namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;

using boost::system::error_code;

HttpFailure failureOf(const error_code& error, HttpFailure otherwise) {
  return error == beast::error::timeout ? HttpFailure::timedOut : otherwise;
}

}  // namespace

std::string requestText(const HttpRequest& request) {
  // HTTP requires "Connection: close" from a client without persistent connections.
  return request.method + ' ' + request.target + " HTTP/1.1\r\nHost: " + request.host +
         "\r\nX-Agent-Token: " + request.token + "\r\nConnection: close\r\n\r\n";
}

asio::awaitable<HttpResult> exchange(HttpRequest request, HttpLimits limits) {
  error_code error;
  // Named, because GCC 12 may destroy a temporary argument inside a co_await twice.
  auto completion = asio::redirect_error(asio::use_awaitable, error);
  const auto executor = co_await asio::this_coro::executor;
  beast::tcp_stream stream(executor);
  stream.expires_after(limits.time);

  co_await stream.async_connect(request.server, completion);
  if (error) {
    co_return failureOf(error, HttpFailure::notConnected);
  }
  // Not earlier, because connecting opens the socket.
  if (!leavesEnoughDescriptors(stream.socket().native_handle())) {
    co_return HttpFailure::notConnected;
  }

  const auto text = requestText(request);
  const auto outgoing = asio::buffer(text);
  co_await asio::async_write(stream, outgoing, completion);
  if (error) {
    co_return failureOf(error, HttpFailure::connectionLost);
  }

  AnswerReader answer(limits);
  while (!answer.isOver()) {
    const auto space = answer.prepare();
    const std::size_t count = co_await stream.async_read_some(space, completion);
    if (!error) {
      answer.parse(count);
    } else if (error == asio::error::eof) {
      answer.finish();
    } else {
      co_return failureOf(error, HttpFailure::connectionLost);
    }
  }
  co_return answer.takeResult();
}

}  // namespace quillmark
