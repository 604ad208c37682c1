// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

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

TEST_F(HttpBroken, NoServer) {
  asio::io_context context;
  asio::ip::tcp::acceptor acceptor(context, {asio::ip::address_v4::loopback(), 0});
  const auto port = acceptor.local_endpoint().port();
  acceptor.close();
  EXPECT_EQ(exchangeWith(port), noBody);
}

TEST_F(HttpBroken, ServerThatClosesAtOnce) { EXPECT_EQ(exchangeFor(""), noBody); }

TEST_F(HttpBroken, AnswerThatEndsAfterAnyByte) {
  const auto close = [](Connection&) {};
  for (const auto& answer : {okAnswer("body"), smallChunkedAnswer}) {
    for (const auto& body : exchangesCutAtEveryByte(answer, close)) {
      EXPECT_EQ(body, noBody);
    }
  }
}

TEST_F(HttpBroken, AnswerThatIsResetAfterAnyByte) {
  const auto reset = [](Connection& connection) { connection.reset(); };
  for (const auto& answer :
       {okAnswer("body"), smallChunkedAnswer, "HTTP/1.1 200 OK\r\n\r\nbody"s}) {
    for (const auto& body : exchangesCutAtEveryByte(answer, reset)) {
      EXPECT_EQ(body, noBody);
    }
  }
}

TEST_F(HttpBroken, ResetAfterABodyWithoutALength) {
  EXPECT_EQ(exchangeWith([](Connection& connection) {
              connection.send("HTTP/1.1 200 OK\r\n\r\nbody");
              connection.reset();
            }),
            noBody);
}

TEST_F(HttpBroken, ResetAfterACompleteAnswerDoesNotMatter) {
  EXPECT_EQ(exchangeWith([](Connection& connection) {
              connection.send(okAnswer("body"));
              connection.reset();
            }),
            "body");
}

}  // namespace
}  // namespace quillmark::test
