// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <string>

#include <gtest/gtest.h>

#include "client/Exchanges.h"

namespace quillmark::test {
namespace {

using namespace std::chrono_literals;

class HttpLimitsOf : public WithExecutor {};

const std::string okLine = "HTTP/1.1 200 OK\r\n";
const std::string chunkedHeader = okLine + "Transfer-Encoding: chunked\r\n\r\n";

/// Sends `beginning` and then `piece` repeatedly until the client closes the connection:
/// without a limit the exchange would never complete.
Body exchangeForEndless(const std::string& beginning, const std::string& piece,
                        HttpLimits limits = {}) {
  return exchangeWith(
      [&](Connection& connection) {
        for (bool isOpen = connection.send(beginning); isOpen; isOpen = connection.send(piece)) {
        }
      },
      limits);
}

/// An answer whose header has this many bytes.
std::string answerWithHeaderOf(std::size_t size, const std::string& body) {
  const std::string start = okLine + "Content-Length: " + std::to_string(body.size()) + "\r\nX: ";
  const std::string end = "\r\n\r\n";
  return start + std::string(size - start.size() - end.size(), 'x') + end + body;
}

TEST_F(HttpLimitsOf, TheHeaderAreEnforced) {
  EXPECT_EQ(exchangeFor(answerWithHeaderOf(64 * 1024, "body")), "body");
  EXPECT_EQ(exchangeFor(answerWithHeaderOf(64 * 1024 + 1, "body")), noBody);
}

TEST_F(HttpLimitsOf, TheHeaderCountAllItsLines) {
  std::string fields;
  while (fields.size() < std::size_t{64} * 1024) {
    fields += "X-Field: " + std::string(100, 'x') + "\r\n";
  }
  EXPECT_EQ(exchangeFor(okLine + fields + "Content-Length: 4\r\n\r\nbody"), noBody);
}

TEST_F(HttpLimitsOf, TheHeaderCountLinesThatArriveOneByOne) {
  const std::string line = "X-Field: " + std::string(7000, 'x') + "\r\n";
  EXPECT_EQ(exchangeWith([&](Connection& connection) {
              connection.send(okLine);
              for (int i = 0; i < 10; ++i) {
                connection.pause(10ms);
                connection.send(line);
              }
              connection.send("Content-Length: 4\r\n\r\nbody");
            }),
            noBody);
}

TEST_F(HttpLimitsOf, TheHeaderApplyToEachAnswerSeparately) {
  const std::string interim =
      "HTTP/1.1 103 Early Hints\r\nX: " + std::string(60000, 'x') + "\r\n\r\n";
  EXPECT_EQ(exchangeFor(interim + interim + answerWithHeaderOf(60000, "body")), "body");
}

TEST_F(HttpLimitsOf, TheHeaderStopEndlessHeaders) {
  EXPECT_EQ(exchangeForEndless("", "x"), noBody);
  EXPECT_EQ(exchangeForEndless("HTTP/1.1 200 ", std::string(1000, 'x')), noBody);
  EXPECT_EQ(exchangeForEndless(okLine + "X: ", std::string(1000, 'x')), noBody);
  EXPECT_EQ(exchangeForEndless(okLine, "X: y\r\n"), noBody);
}

TEST_F(HttpLimitsOf, TheHeaderApplyToChunkLinesAndTrailers) {
  const std::string filler(1000, 'x');
  EXPECT_EQ(exchangeForEndless(chunkedHeader + "4;x=", filler), noBody);
  EXPECT_EQ(exchangeForEndless(chunkedHeader, "0"), noBody) << "a chunk size of zeros";
  EXPECT_EQ(exchangeForEndless(chunkedHeader + "0\r\nX: ", filler), noBody);
  EXPECT_EQ(exchangeForEndless(chunkedHeader + "0\r\n", "X: y\r\n"), noBody);
}

TEST_F(HttpLimitsOf, TheHeaderDoNotApplyToTheBody) {
  const std::string body(std::size_t{200} * 1024, 'x');
  EXPECT_EQ(exchangeFor(okAnswer(body)), body);
}

constexpr HttpLimits tenBytes{.bodyBytes = 10};

TEST_F(HttpLimitsOf, TheBodyApplyToAnAnnouncedLength) {
  EXPECT_EQ(exchangeForKept(okAnswer("0123456789"), tenBytes), "0123456789");
  EXPECT_EQ(exchangeForKept(okAnswer("0123456789x"), tenBytes), noBody);
}

// The server keeps the connection open and sends no body: the announced length must
// be enough.
TEST_F(HttpLimitsOf, TheBodyRefuseALengthBeforeTheBodyArrives) {
  EXPECT_EQ(exchangeForKept(okLine + "Content-Length: 11\r\n\r\n", tenBytes), noBody);
  EXPECT_EQ(exchangeForKept(okLine + "Content-Length: 67108865\r\n\r\n"), noBody);
  EXPECT_EQ(exchangeForKept(okLine + "Content-Length: 18446744073709551615\r\n\r\n"), noBody);
}

TEST_F(HttpLimitsOf, TheBodyApplyToChunks) {
  EXPECT_EQ(exchangeForKept(chunkedHeader + "5\r\n01234\r\n5\r\n56789\r\n0\r\n\r\n", tenBytes),
            "0123456789");
  EXPECT_EQ(exchangeForKept(chunkedHeader + "5\r\n01234\r\n6\r\n56789x\r\n0\r\n\r\n", tenBytes),
            noBody);
  EXPECT_EQ(exchangeForEndless(chunkedHeader, "1\r\nx\r\n", tenBytes), noBody);
  EXPECT_EQ(exchangeForKept(chunkedHeader + "ffffffffffffffff\r\nx", tenBytes), noBody);
}

TEST_F(HttpLimitsOf, TheBodyApplyUntilTheEndOfTheConnection) {
  EXPECT_EQ(exchangeFor(okLine + "\r\n0123456789", tenBytes), "0123456789");
  EXPECT_EQ(exchangeFor(okLine + "\r\n0123456789x", tenBytes), noBody);
  EXPECT_EQ(exchangeForEndless(okLine + "\r\n", "x", tenBytes), noBody);
}

}  // namespace
}  // namespace quillmark::test
