// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "client/Exchanges.h"

namespace quillmark::test {
namespace {

class HttpStatus : public WithExecutor {};

TEST_F(HttpStatus, DoesNotMatterToTheBody) {
  for (const std::string status :
       {"200 OK", "201 Created", "400 Bad Request", "401 Unauthorized", "404 Not Found",
        "500 Internal Server Error", "503 Service Unavailable", "599 ", "999 Unheard of"}) {
    EXPECT_EQ(exchangeFor(answer(status, "{}")), "{}") << status;
  }
}

TEST_F(HttpStatus, OfARedirectSendsTheTokenNowhereElse) {
  const Backend elsewhere(
      [](const ReceivedRequest&, Connection& connection) { connection.send(okAnswer("{}")); }, 0);
  const std::string place = "http://127.0.0.1:" + std::to_string(elsewhere.port()) + "/api/status";
  for (const std::string status :
       {"300 Multiple Choices", "301 Moved Permanently", "302 Found", "303 See Other",
        "307 Temporary Redirect", "308 Permanent Redirect"}) {
    EXPECT_EQ(exchangeFor(answer(status, "moved", "Location: " + place + "\r\n")), "moved");
  }
  EXPECT_EQ(connectionsSoFar(elsewhere), 0);
}

TEST_F(HttpStatus, OfAnInterimAnswerIsNotTheLast) {
  const std::string interim =
      "HTTP/1.1 100 Continue\r\n\r\n"
      "HTTP/1.1 102 Processing\r\nX-Note: 1\r\n\r\n"
      "HTTP/1.1 103 Early Hints\r\nLink: </>\r\n\r\n";
  EXPECT_EQ(exchangeFor(interim + okAnswer("body")), "body");
  EXPECT_EQ(exchangeForKept(interim + okAnswer("body")), "body");
}

TEST_F(HttpStatus, OfAnInterimAnswerIsNotTheLastWhereverItIsCut) {
  const auto bodies = exchangesCutAtEveryByte(
      "HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 103 Early Hints\r\nA: b\r\n\r\n" + okAnswer("body"),
      [](Connection& connection, std::string_view rest) { connection.send(rest); });
  for (const auto& body : bodies) {
    EXPECT_EQ(body, "body");
  }
}

TEST_F(HttpStatus, OfAnInterimAnswerAloneIsNoAnswer) {
  EXPECT_EQ(exchangeFor("HTTP/1.1 100 Continue\r\n\r\n"), noBody);
  EXPECT_EQ(exchangeFor("HTTP/1.1 100 Continue\r\n\r\nHTTP/1.1 200"), noBody);
}

TEST_F(HttpStatus, OfInterimAnswersWithoutEndIsNoAnswer) {
  EXPECT_EQ(exchangeWith([](Connection& connection) {
              while (connection.send("HTTP/1.1 100 Continue\r\n\r\n")) {
              }
            }),
            noBody);
}

// Nobody asked for another protocol; what follows belongs to it.
TEST_F(HttpStatus, OfAnotherProtocolEndsTheAnswer) {
  EXPECT_EQ(exchangeForKept("HTTP/1.1 101 Switching Protocols\r\nUpgrade: x\r\n\r\n{}"), "");
}

}  // namespace
}  // namespace quillmark::test
