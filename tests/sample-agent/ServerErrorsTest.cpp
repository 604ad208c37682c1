// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "sample-agent/RunningServer.h"

namespace quillmark::sample {
namespace {

using namespace test;

TEST(ServerErrors, HaveTheirStatus) {
  const RunningServer server;
  const auto status = [&](const RequestText& request) {
    return statusOf(ask(server.port(), request.text()));
  };
  RequestText good;
  good.token = agentToken;
  auto request = good;
  request.token = "wrong";
  EXPECT_EQ(status(request), 401);
  request = good;
  request.target = "/nothing";
  EXPECT_EQ(status(request), 404);
  request = good;
  request.method = "DELETE";
  EXPECT_EQ(status(request), 405);
  request = good;
  request.method = "UNHEARD-OF";
  EXPECT_EQ(status(request), 405);
  request = good;
  request.host = "evil.example:7823";
  EXPECT_EQ(status(request), 421);
  request = good;
  request.moreFields = "Host: 127.0.0.1:7823\r\n";
  EXPECT_EQ(status(request), 400) << "two hosts";
  request = good;
  request.moreFields = "X-Agent-Token: " + agentToken + "\r\n";
  EXPECT_EQ(status(request), 401) << "two tokens";
  request = good;
  request.moreFields = "Content-Length: 3\r\n";
  request.body = "abc";
  EXPECT_EQ(status(request), 413);
  request.moreFields = "Content-Length: 99999999999\r\n";
  EXPECT_EQ(status(request), 413);
  request.moreFields = "Transfer-Encoding: chunked\r\n";
  request.body = "3\r\nabc\r\n0\r\n\r\n";
  EXPECT_EQ(status(request), 413);
  request = good;
  request.moreFields = "Content-Length: 0\r\n";
  EXPECT_EQ(status(request), 200) << "a length of 0 means no body";
}

TEST(ServerErrors, HaveTheFieldsThatTheyRequire) {
  const RunningServer server;
  RequestText request;
  EXPECT_NE(ask(server.port(), request.text()).find("\r\nWWW-Authenticate: X-Agent-Token\r\n"),
            std::string::npos);
  request.token = agentToken;
  request.method = "POST";
  EXPECT_NE(ask(server.port(), request.text()).find("\r\nAllow: GET\r\n"), std::string::npos);
}

TEST(ServerErrors, HaveNoBodyForHead) {
  const RunningServer server;
  RequestText request;
  request.token = agentToken;
  request.method = "HEAD";
  const auto answer = ask(server.port(), request.text());
  EXPECT_EQ(statusOf(answer), 405);
  EXPECT_TRUE(answer.ends_with("\r\n\r\n")) << answer;
}

TEST(ServerErrors, AnswerBytesThatAreNoRequest) {
  const RunningServer server;
  EXPECT_EQ(statusOf(ask(server.port(), "what is this?\r\n\r\n")), 400);
  EXPECT_EQ(statusOf(ask(server.port(), std::string("\0\x16\x03\x01\r\n\r\n", 8))), 400);
  EXPECT_EQ(statusOf(ask(server.port(), "GET /api/status HTTP/1.1\r\nHost : x\r\n\r\n")), 400);
  EXPECT_EQ(statusOf(ask(server.port(), "GET /api/status HTTP/1.1\r\n\r\n")), 400) << "no host";
}

TEST(ServerErrors, ReachAClientThatIsStillSending) {
  const RunningServer server;
  RequestText request;
  request.token = "wrong";
  request.moreFields = "Content-Length: 60000\r\n";
  request.body = filler(60'000);
  EXPECT_EQ(statusOf(ask(server.port(), request.text())), 401);
}

}  // namespace
}  // namespace quillmark::sample
