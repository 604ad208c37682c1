// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <csignal>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "sample-agent/program/ProgramTest.h"

namespace quillmark::sample::test {
namespace {

using namespace std::string_literals;

constexpr std::string_view statusLine = "HTTP/1.1 ";

std::size_t countOf(std::string_view piece, std::string_view text) {
  std::size_t count = 0;
  for (auto at = text.find(piece); at != std::string_view::npos; at = text.find(piece, at + 1)) {
    ++count;
  }
  return count;
}

/// Malicious requests, each with the right token: if the server read one as two, or as
/// another request, the client would get data.
class Abuse : public RunningProgramTest {
 protected:
  void TearDown() override {
    EXPECT_EQ(statusOf(get("/api/status")), 200) << "a good client is served as before";
    EXPECT_EQ(agent_->stop(SIGTERM), 0);
    EXPECT_EQ(agent_->errors(), "");
  }

  /// Expects that these bytes get one answer with this status, without data unless the
  /// status is 200.
  static void expectOneAnswer(const std::string& bytes, int status) {
    SCOPED_TRACE(testing::PrintToString(bytes.substr(0, 200)));
    const std::string answer = ask(programPort, bytes);
    EXPECT_EQ(statusOf(answer), status);
    EXPECT_EQ(countOf(statusLine, answer), 1U) << answer;
    EXPECT_EQ(countOf("protection_enabled", answer), status == 200 ? 1U : 0U) << answer;
    EXPECT_EQ(countOf("Access-Control", answer), 0U) << answer;
  }

  void expectWithFields(const std::string& fields, int status) const {
    auto request = good_;
    request.moreFields = fields;
    expectOneAnswer(request.text(), status);
  }

  [[nodiscard]] std::string good() const { return good_.text(); }
  [[nodiscard]] std::string authentic() const {
    return "Host: 127.0.0.1:7823\r\nX-Agent-Token: " + good_.token + "\r\n";
  }
};

TEST_F(Abuse, ByTwoLengthsOfOneRequest) {
  expectWithFields("Content-Length: 0\r\n", 200);
  expectWithFields("Content-Length: 5\r\n", 413);
  expectWithFields("Transfer-Encoding: chunked\r\n", 413);
  expectWithFields("Content-Length: 0\r\nTransfer-Encoding: chunked\r\n", 400);
  expectWithFields("Transfer-Encoding: chunked\r\nContent-Length: 0\r\n", 400);
  expectWithFields("Content-Length: 0\r\nContent-Length: 5\r\n", 400);
  expectWithFields("Content-Length: -1\r\n", 400);
  expectWithFields("Content-Length: 0x0\r\n", 400);
  expectWithFields("Content-Length: 18446744073709551616\r\n", 400);
}

TEST_F(Abuse, ByARequestHiddenInAnother) {
  auto outer = good_;
  outer.moreFields = "Content-Length: " + std::to_string(good().size()) + "\r\n";
  outer.body = good();
  expectOneAnswer(outer.text(), 413);
  outer.moreFields = "Transfer-Encoding: chunked\r\n";
  outer.body = "0\r\n\r\n" + good();
  expectOneAnswer(outer.text(), 413);
  outer = good_;
  outer.token = "wrong";
  expectOneAnswer(outer.text() + good(), 401);
  expectOneAnswer(good() + good(), 200);
}

TEST_F(Abuse, ByLinesThatOtherServersReadDifferently) {
  const std::string start = "GET /api/status HTTP/1.1\r\n";
  expectOneAnswer(start + "X: y\n" + authentic() + "\r\n", 400);
  expectOneAnswer("GET /api/status HTTP/1.1\n" + authentic() + "\r\n", 400);
  expectOneAnswer(start + "X: y\r" + authentic() + "\r\n", 400);
  expectOneAnswer(start + "X: a\0b\r\n"s + authentic() + "\r\n", 400);
  expectOneAnswer(start + "X\0: a\r\n"s + authentic() + "\r\n", 400);
  expectOneAnswer(start + "X : a\r\n" + authentic() + "\r\n", 400);
  expectOneAnswer(start + " folded\r\n" + authentic() + "\r\n", 400);
  expectOneAnswer(start + "no colon\r\n" + authentic() + "\r\n", 400);
  expectOneAnswer("GET /api/status\0 HTTP/1.1\r\n"s + authentic() + "\r\n", 400);
  expectOneAnswer("GET  /api/status HTTP/1.1\r\n" + authentic() + "\r\n", 400);
  expectOneAnswer("GET /api/status HTTP/1.1 \r\n" + authentic() + "\r\n", 400);
  expectOneAnswer("GET /api/status\r\n" + authentic() + "\r\n", 400);
  expectOneAnswer("GET /api/status HTTP/2.0\r\n" + authentic() + "\r\n", 400);
  expectOneAnswer("GET /api/status HTTP/0.9\r\n" + authentic() + "\r\n", 400);
}

TEST_F(Abuse, ByAnotherTarget) {
  for (const std::string target :
       {"http://127.0.0.1:7823/api/status", "http://attacker.example/api/status", "*",
        "//api/status", "/api/status/", "/api//status", "/api/../api/status", "/api/%73tatus",
        "/API/STATUS", "/api/status;x", "/api/status#x", "/../../etc/passwd", "/"}) {
    auto request = good_;
    request.target = target;
    expectOneAnswer(request.text(), 404);
  }
}

// DNS rebinding: the Host field has the domain name of a web page that resolves to this
// machine.
TEST_F(Abuse, ByAWebPage) {
  for (const std::string host :
       {"attacker.example", "attacker.example:7823", "127.0.0.1.attacker.example:7823",
        "127.0.0.1:7823@attacker.example", "attacker.example#127.0.0.1:7823", "127.0.0.2:7823",
        "127.1:7823", "2130706433:7823", "0.0.0.0:7823", "[::1]:7823", "127.0.0.1", ""}) {
    auto request = good_;
    request.host = host;
    expectOneAnswer(request.text(), 421);
  }
  expectOneAnswer("GET /api/status HTTP/1.1\r\nX-Agent-Token: " + good_.token + "\r\n\r\n", 400);
  expectWithFields("Host: attacker.example\r\n", 400);
  expectWithFields("Host: 127.0.0.1:7823\r\n", 400);
  expectWithFields("Origin: http://attacker.example\r\nSec-Fetch-Mode: cors\r\n", 200);
  auto preflight = good_;
  preflight.method = "OPTIONS";
  preflight.token = "";
  preflight.moreFields =
      "Origin: http://attacker.example\r\nAccess-Control-Request-Method: GET\r\n";
  expectOneAnswer(preflight.text(), 401);
}

TEST_F(Abuse, BySize) {
  auto request = good_;
  request.target = "/" + std::string(9000, 'x');
  expectOneAnswer(request.text(), 431);
  expectWithFields("X: " + std::string(9000, 'x') + "\r\n", 431);
  std::string many;
  for (int i = 0; i < 10'000; ++i) {
    many += "a: b\r\n";
  }
  expectWithFields(many, 431);
  expectOneAnswer(std::string(9000, 'x'), 431);
  expectOneAnswer("GET /api/status HTTP/1.1\r\n" + std::string(9000, 'x'), 431);
  expectWithFields("Content-Length: 18446744073709551615\r\n", 413);
}

TEST_F(Abuse, ByRequestsThatNeverEnd) {
  for (const std::string piece : {"x", "a: b\r\n", "\r\n"}) {
    const RawClient client(programPort);
    ASSERT_TRUE(client.isConnected());
    bool isOpen = client.send("GET /api/status HTTP/1.1\r\n");
    const std::string pieces = [&] {
      std::string text;
      while (text.size() < 4096) {
        text += piece;
      }
      return text;
    }();
    while (isOpen) {
      isOpen = client.send(pieces);
    }
    EXPECT_EQ(statusOf(get("/api/status")), 200);
  }
}

TEST_F(Abuse, ByOtherProtocols) {
  expectOneAnswer("\x16\x03\x01\x02\0\x01\0\x01\xFC\x03\x03\r\n\r\n"s, 400);
  expectOneAnswer("SSH-2.0-client\r\n\r\n", 400);
  expectOneAnswer("PRI * HTTP/2.0\r\n\r\nSM\r\n\r\n", 400);
  expectOneAnswer("GET /api/status\r\n\r\n", 400);
  expectOneAnswer(std::string(1000, '\0'), 400);
  expectWithFields("Expect: 100-continue\r\n", 200);
  expectWithFields("Connection: Upgrade, HTTP2-Settings\r\nUpgrade: h2c\r\n", 200);
}

}  // namespace
}  // namespace quillmark::sample::test
