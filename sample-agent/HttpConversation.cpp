// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "HttpConversation.h"

#include <array>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include <boost/asio/buffer.hpp>
#include <boost/asio/redirect_error.hpp>
#include <boost/asio/use_awaitable.hpp>
#include <boost/beast/core/flat_buffer.hpp>
#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/parser.hpp>
#include <boost/beast/http/read.hpp>
#include <boost/beast/http/span_body.hpp>
#include <boost/beast/http/write.hpp>
#include <boost/none.hpp>

namespace quillmark::sample {
namespace {

namespace asio = boost::asio;
namespace beast = boost::beast;
namespace http = beast::http;
using asio::ip::tcp;

using ErrorCode = boost::system::error_code;
using Message = http::request<http::empty_body>;
using Parser = http::request_parser<http::empty_body>;
using Response = http::response<http::span_body<const char>>;

std::string_view toStandard(beast::string_view text) { return {text.data(), text.size()}; }
beast::string_view toBeast(std::string_view text) { return {text.data(), text.size()}; }

std::vector<std::string_view> valuesOf(const Message& message, std::string_view name) {
  std::vector<std::string_view> values;
  const auto [begin, end] = message.equal_range(toBeast(name));
  for (auto field = begin; field != end; ++field) {
    values.push_back(toStandard(field->value()));
  }
  return values;
}

Request requestOf(const Parser& parser) {
  const Message& message = parser.get();
  Request request;
  request.method = toStandard(message.method_string());
  request.target = toStandard(message.target());
  request.hosts = valuesOf(message, "Host");
  request.tokens = valuesOf(message, "X-Agent-Token");
  request.hasBody = parser.chunked() || parser.content_length().value_or(0) > 0;
  return request;
}

Response responseOf(const Answer& answer) {
  Response response;
  response.version(11);
  response.result(answer.status);
  response.set(http::field::content_type, "application/json");
  response.set(http::field::cache_control, "no-store");
  response.set(http::field::connection, "close");
  if (!answer.fieldName.empty()) {
    response.set(toBeast(answer.fieldName), toBeast(answer.fieldValue));
  }
  response.body() = {answer.body.data(), answer.body.size()};
  response.prepare_payload();
  return response;
}

bool isTooLarge(const ErrorCode& error) {
  return error == http::error::header_limit || error == http::error::buffer_overflow;
}

/// Whether the client sent bytes that are no valid request; else it has disconnected.
bool isInvalidRequest(const ErrorCode& error) {
  const ErrorCode anyInvalid = http::error::bad_version;
  return error.category() == anyInvalid.category() && error != http::error::end_of_stream &&
         error != http::error::partial_message;
}

/// Lets the client receive the whole answer: closing a socket with unread bytes
/// would make the system drop what is still in flight to the client.
asio::awaitable<void> drain(tcp::socket& socket) {
  constexpr std::size_t maxUnreadBytes = std::size_t{64} * 1024;
  std::array<char, 4096> unread;
  const auto buffer = asio::buffer(unread);
  ErrorCode error;
  auto completion = asio::redirect_error(asio::use_awaitable, error);
  socket.shutdown(tcp::socket::shutdown_send, error);
  std::size_t total = 0;
  while (!error && total < maxUnreadBytes) {
    total += co_await socket.async_read_some(buffer, completion);
  }
}

}  // namespace

asio::awaitable<void> serveRequest(tcp::socket& socket, std::uint32_t headerBytes,
                                   AnswerRule rule) {
  ErrorCode error;
  // Named, because GCC 12 may destroy a temporary argument inside a co_await twice.
  auto completion = asio::redirect_error(asio::use_awaitable, error);
  beast::flat_buffer buffer;
  Parser parser;
  parser.header_limit(headerBytes);
  // No body is read. A limit would make the parser reject the header of a longer one.
  parser.body_limit(boost::none);
  co_await http::async_read_header(socket, buffer, parser, completion);
  if (error && !isInvalidRequest(error)) {
    co_return;
  }

  Answer answer = isTooLarge(error) ? headerTooLargeAnswer() : malformedAnswer();
  if (!error) {
    answer = rule(requestOf(parser));
  }
  Response response = responseOf(answer);
  if (parser.get().method() == http::verb::head) {
    response.body() = {};
  }
  co_await http::async_write(socket, response, completion);
  if (!error) {
    auto draining = drain(socket);
    co_await std::move(draining);
  }
}

}  // namespace quillmark::sample
