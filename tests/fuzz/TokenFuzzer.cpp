// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <string>

#include <boost/asio/buffer.hpp>
#include <boost/beast/http/empty_body.hpp>
#include <boost/beast/http/parser.hpp>

#include "client/AccessToken.h"
#include "client/HttpExchange.h"
#include "fuzz/Fuzzer.h"
#include "platform/Utf8.h"

namespace {

using namespace quillmark;
using namespace quillmark::fuzz;
namespace http = boost::beast::http;

/// Requires that a server reads exactly one request from the bytes, with this token.
void requireOneRequest(const std::string& wire, const std::string& token) {
  http::request_parser<http::empty_body> parser;
  boost::system::error_code error;
  const auto used = parser.put(boost::asio::buffer(wire), error);
  require(!error && parser.is_done() && used == wire.size(), "the bytes are one request");
  const auto& message = parser.get();
  require(std::distance(message.begin(), message.end()) == 3, "a token adds no field");
  require(message["X-Agent-Token"] == token, "a token arrives unchanged");
  require(message[http::field::host] == "127.0.0.1:7823", "a token changes no other field");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto file = textOf(data, size);
  if (!isUtf8(file)) {
    return 0;
  }
  const std::string token(trimWhiteSpace(file));
  require(trimWhiteSpace(token) == token, "white space is removed completely");
  require(file.find(token) != std::string_view::npos, "a token is a part of its file");
  if (fitsHeaderField(token)) {
    requireOneRequest(requestText({{}, "127.0.0.1:7823", "GET", "/api/status", token}), token);
  }
  return 0;
}
