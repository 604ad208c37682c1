// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "client/Exchanges.h"

namespace quillmark::test {
namespace {

class HttpFraming : public WithExecutor {};

const std::string chunkedAnswer =
    "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
    "5;name=value\r\n{\"a\":\r\n"
    "1\r\n1\r\n"
    "00A\r\n,\"b\":\"\r\n\"}\r\n"
    "0;last\r\nX-Trailer: t\r\n\r\n";
const std::string chunkedBody = "{\"a\":1,\"b\":\"\r\n\"}";

TEST_F(HttpFraming, IsByLength) {
  EXPECT_EQ(exchangeFor("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\nbody"), "body");
  EXPECT_EQ(exchangeFor("HTTP/1.1 200 OK\r\ncontent-length:4\r\n\r\nbody"), "body");
  EXPECT_EQ(exchangeFor("HTTP/1.1 200 OK\r\nContent-Length: 0\r\n\r\n"), "");
}

TEST_F(HttpFraming, IsByChunks) {
  EXPECT_EQ(exchangeFor(chunkedAnswer), chunkedBody);
  EXPECT_EQ(exchangeFor("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n0\r\n\r\n"), "");
}

TEST_F(HttpFraming, IsByTheEndOfTheConnection) {
  EXPECT_EQ(exchangeFor("HTTP/1.1 200 OK\r\n\r\nbody"), "body");
  EXPECT_EQ(exchangeFor("HTTP/1.0 200 OK\r\n\r\nbody"), "body");
  EXPECT_EQ(exchangeFor("HTTP/1.1 200 OK\r\n\r\n"), "");
}

// Such a server does not close the connection before the client's time limit.
TEST_F(HttpFraming, EndsAnAnswerOnAConnectionThatStaysOpen) {
  EXPECT_EQ(exchangeForKept(okAnswer("body")), "body");
  EXPECT_EQ(exchangeForKept(answer("200 OK", "body", "Connection: keep-alive\r\n")), "body");
  EXPECT_EQ(exchangeForKept(okAnswer("")), "");
  EXPECT_EQ(exchangeForKept(chunkedAnswer), chunkedBody);
}

TEST_F(HttpFraming, EndsAnAnswerWhoseStatusAllowsNoBody) {
  EXPECT_EQ(exchangeForKept("HTTP/1.1 204 No Content\r\n\r\n"), "");
  EXPECT_EQ(exchangeForKept("HTTP/1.1 304 Not Modified\r\nContent-Length: 4\r\n\r\n"), "");
}

TEST_F(HttpFraming, IgnoresWhatFollowsTheAnswer) {
  EXPECT_EQ(exchangeFor(okAnswer("body") + "more"), "body");
  EXPECT_EQ(exchangeFor(okAnswer("body") + okAnswer("another")), "body");
  EXPECT_EQ(exchangeFor(chunkedAnswer + chunkedAnswer), chunkedBody);
}

TEST_F(HttpFraming, CarriesAnyBytes) {
  std::string body;
  for (int byte = 0; byte < 256; ++byte) {
    body += static_cast<char>(byte);
  }
  EXPECT_EQ(exchangeFor(okAnswer(body)), body);
}

TEST_F(HttpFraming, CarriesLargeBodies) {
  const std::string body(std::size_t{8} * 1024 * 1024, 'x');
  EXPECT_EQ(exchangeFor(okAnswer(body)), body);
  EXPECT_EQ(exchangeFor("HTTP/1.1 200 OK\r\n\r\n" + body), body);
  EXPECT_EQ(exchangeFor("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n800000\r\n" + body +
                        "\r\n0\r\n\r\n"),
            body);
}

}  // namespace
}  // namespace quillmark::test
