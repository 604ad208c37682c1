// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <boost/asio/io_context.hpp>

#include "client/Exchanges.h"

namespace quillmark::test {
namespace {

using namespace std::string_literals;
namespace asio = boost::asio;

class HttpBroken : public WithExecutor {};

const std::string smallChunkedAnswer =
    "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n4\r\nbody\r\n0\r\n\r\n";

TEST_F(HttpBroken, ServerThatIsNotThere) {
  asio::io_context context;
  asio::ip::tcp::acceptor acceptor(context, {asio::ip::address_v4::loopback(), 0});
  const auto port = acceptor.local_endpoint().port();
  acceptor.close();
  EXPECT_EQ(exchangeWith(port), noBody);
}

TEST_F(HttpBroken, ServerThatClosesAtOnce) { EXPECT_EQ(exchangeFor(""), noBody); }

TEST_F(HttpBroken, AnswerThatBreaksOffAnywhere) {
  const Rest close = [](Connection&, std::string_view) {};
  for (const auto& answer : {okAnswer("body"), smallChunkedAnswer}) {
    for (const auto& body : exchangesCutAtEveryByte(answer, close)) {
      EXPECT_EQ(body, noBody);
    }
  }
}

TEST_F(HttpBroken, AnswerThatIsResetAnywhere) {
  const Rest reset = [](Connection& connection, std::string_view) { connection.reset(); };
  for (const auto& answer :
       {okAnswer("body"), smallChunkedAnswer, "HTTP/1.1 200 OK\r\n\r\nbody"s}) {
    for (const auto& body : exchangesCutAtEveryByte(answer, reset)) {
      EXPECT_EQ(body, noBody);
    }
  }
}

TEST_F(HttpBroken, ResetAtTheEndOfABodyThatOnlyTheEndOfTheConnectionEnds) {
  EXPECT_EQ(exchangeWith([](Connection& connection) {
              connection.send("HTTP/1.1 200 OK\r\n\r\nbody");
              connection.reset();
            }),
            noBody);
}

TEST_F(HttpBroken, ResetAfterAWholeAnswerDoesNotMatter) {
  EXPECT_EQ(exchangeWith([](Connection& connection) {
              connection.send(okAnswer("body"));
              connection.reset();
            }),
            "body");
}

TEST_F(HttpBroken, AnswerThatIsNoHttp) {
  const std::vector<std::string> answers{
      "{\"status\":\"ok\"}", "{\"status\":\"ok\"}\r\n\r\n", "<html>body</html>\n", "\r\n\r\n",
      "SSH-2.0-server\r\n", "220 ready\r\n",
      // A TLS record: alert, handshake failure.
      "\x15\x03\x03\x00\x02\x02\x28"s, std::string(1000, '\0'), std::string(1000, '\xFF'),
      "PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n", "HTTP/2.0 200 OK\r\n\r\nbody",
      "HTTP/0.9 200 OK\r\n\r\nbody", "HTTP/1.1 20 OK\r\n\r\nbody", "HTTP/1.1 2000 OK\r\n\r\nbody",
      "HTTP/1.1 abc OK\r\n\r\nbody", "HTTP/1.1  200 OK\r\n\r\nbody", "http/1.1 200 OK\r\n\r\nbody",
      " HTTP/1.1 200 OK\r\n\r\nbody", "GET / HTTP/1.1\r\n\r\n"};
  for (const auto& answer : answers) {
    EXPECT_EQ(exchangeFor(answer), noBody) << testing::PrintToString(answer);
  }
}

TEST_F(HttpBroken, AnswerWithABadHeader) {
  for (const std::string field :
       {"no colon", ": no name", "na me: x", "X: a\x01z", "X: a\x7Fz", "Content-Length: x",
        "Content-Length: -1", "Content-Length: 4\r\nContent-Length: 5",
        "Content-Length: 99999999999999999999",
        "Content-Length: 4\r\nTransfer-Encoding: chunked"}) {
    EXPECT_EQ(exchangeFor("HTTP/1.1 200 OK\r\n" + field + "\r\n\r\nbody"), noBody) << field;
  }
}

TEST_F(HttpBroken, AnswerWithBadChunks) {
  for (const std::string chunks :
       {"x\r\nbody\r\n0\r\n\r\n", "-4\r\nbody\r\n0\r\n\r\n", "\r\nbody\r\n0\r\n\r\n",
        "4\r\nbodymore\r\n0\r\n\r\n", "4\r\nbody0\r\n\r\n",
        "10000000000000000\r\nbody\r\n0\r\n\r\n"}) {
    EXPECT_EQ(exchangeFor("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + chunks), noBody)
        << chunks;
  }
}

}  // namespace
}  // namespace quillmark::test
