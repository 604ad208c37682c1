// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "client/Exchanges.h"

namespace quillmark::test {
namespace {

class HttpStatus : public WithExecutor {};

TEST_F(HttpStatus, OfInterimAnswersIsSkipped) {
  const std::string interim =
      "HTTP/1.1 100 Continue\r\n\r\n"
      "HTTP/1.1 102 Processing\r\nX-Note: 1\r\n\r\n"
      "HTTP/1.1 103 Early Hints\r\nLink: </>\r\n\r\n";
  EXPECT_EQ(exchangeFor(interim + okAnswer("body")), "body");
  EXPECT_EQ(exchangeForKept(interim + okAnswer("body")), "body");
}

TEST_F(HttpStatus, OfAnInterimAnswerAloneIsNoAnswer) {
  EXPECT_EQ(exchangeFor("HTTP/1.1 100 Continue\r\n\r\n"), noBody);
  EXPECT_EQ(exchangeFor("HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 200"), noBody);
}

TEST_F(HttpStatus, OfEndlessInterimAnswersIsNoAnswer) {
  EXPECT_EQ(exchangeWith([](Connection& connection) {
              while (connection.send("HTTP/1.1 100 Continue\r\n\r\n")) {
              }
            }),
            noBody);
}

// The client did not request another protocol; the bytes that follow belong to it.
TEST_F(HttpStatus, OfAnotherProtocolEndsTheAnswer) {
  EXPECT_EQ(exchangeForKept("HTTP/1.1 101 Switching Protocols\r\nUpgrade: x\r\n\r\n{}"), "");
}

}  // namespace
}  // namespace quillmark::test
