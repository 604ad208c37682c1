// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>
#include <boost/asio/io_context.hpp>
#include <boost/asio/read.hpp>
#include <boost/asio/read_until.hpp>
#include <boost/asio/write.hpp>

#include "client/Exchanges.h"

namespace quillmark::test {
namespace {

namespace asio = boost::asio;

class HttpRequestBytes : public WithExecutor {
 protected:
  const Backend backend{
      [](const ReceivedRequest&, Connection& connection) { connection.send(okAnswer("{}")); }, 0};
  const std::string host = "127.0.0.1:" + std::to_string(backend.port());

  std::string bytesOf(const HttpRequest& request) const {
    EXPECT_EQ(startExchange(request).get(), "{}");
    return backend.requests().back().text;
  }
};

TEST_F(HttpRequestBytes, AreTheRequestLineAndThreeFields) {
  EXPECT_EQ(bytesOf(requestTo(backend.port(), "/api/alerts")),
            "GET /api/alerts HTTP/1.1\r\n"
            "Host: " +
                host +
                "\r\n"
                "X-Agent-Token: secret\r\n"
                "Connection: close\r\n"
                "\r\n");
}

TEST_F(HttpRequestBytes, CarryAnEmptyTokenAsAnEmptyField) {
  auto request = requestTo(backend.port());
  request.token = "";
  EXPECT_EQ(bytesOf(request), "GET /api/status HTTP/1.1\r\nHost: " + host +
                                  "\r\nX-Agent-Token: \r\nConnection: close\r\n\r\n");
}

TEST_F(HttpRequestBytes, CarryTheTokenUnchanged) {
  for (const std::string token : {"a b", "a\tb", "a:b,c;d=\"e\"", "tok\u00E9n \U0001F600 \u200B"}) {
    auto request = requestTo(backend.port());
    request.token = token;
    EXPECT_NE(bytesOf(request).find("\r\nX-Agent-Token: " + token + "\r\n"), std::string::npos)
        << token;
  }
}

TEST_F(HttpRequestBytes, CarryMethodAndTargetUnchanged) {
  auto request = requestTo(backend.port(), "/x?y=%20z");
  request.method = "OPTIONS";
  EXPECT_TRUE(bytesOf(request).starts_with("OPTIONS /x?y=%20z HTTP/1.1\r\n"));
}

TEST_F(HttpRequestBytes, UseASeparateConnectionEach) {
  for (int i = 1; i <= 3; ++i) {
    EXPECT_EQ(exchangeWith(backend.port()), "{}");
    EXPECT_EQ(backend.connections(), i);
  }
}

// Everything until the client closes, not only what a server would parse.
TEST_F(HttpRequestBytes, AreAllThatIsSent) {
  asio::io_context context;
  asio::ip::tcp::acceptor acceptor(context, {asio::ip::address_v4::loopback(), 0});
  auto exchange = startExchange(requestTo(acceptor.local_endpoint().port()));
  auto socket = acceptor.accept();

  std::string received;
  asio::read_until(socket, asio::dynamic_buffer(received), "\r\n\r\n");
  asio::write(socket, asio::buffer(okAnswer("{}")));
  boost::system::error_code end;
  asio::read(socket, asio::dynamic_buffer(received), end);

  EXPECT_EQ(end, asio::error::eof);
  EXPECT_EQ(exchange.get(), "{}");
  EXPECT_TRUE(received.starts_with("GET /api/status HTTP/1.1\r\n"));
  EXPECT_EQ(received.find("\r\n\r\n"), received.size() - 4);
}

}  // namespace
}  // namespace quillmark::test
