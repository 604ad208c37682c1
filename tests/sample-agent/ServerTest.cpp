// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Server.h"

#include <string>

#include <gtest/gtest.h>

#include "sample-agent/RunningServer.h"

namespace quillmark::sample {
namespace {

using namespace test;

TEST(Server, AnswersWithThePublishedBodies) {
  const RunningServer server;
  const auto answer = ask(server.port(), goodRequest());
  EXPECT_EQ(statusOf(answer), 200);
  EXPECT_EQ(bodyOf(answer), "first");
  EXPECT_NE(answer.find("\r\nContent-Type: application/json\r\n"), std::string::npos) << answer;
  EXPECT_NE(answer.find("\r\nContent-Length: 5\r\n"), std::string::npos) << answer;
  EXPECT_NE(answer.find("\r\nConnection: close\r\n"), std::string::npos) << answer;
  EXPECT_NE(answer.find("\r\nCache-Control: no-store\r\n"), std::string::npos) << answer;
}

TEST(Server, AnswersWithTheNewestBodies) {
  RunningServer server;
  EXPECT_EQ(bodyOf(ask(server.port(), goodRequest())), "first");
  server.publish(bodiesWith("second"));
  EXPECT_EQ(bodyOf(ask(server.port(), goodRequest())), "second");
}

TEST(Server, LetsClientsWaitForTheFirstBodies) {
  RunningServer server({}, false);
  const RawClient early(server.port());
  ASSERT_TRUE(early.isConnected());
  ASSERT_TRUE(early.send(goodRequest()));
  server.publish(bodiesWith("ready"));
  EXPECT_EQ(bodyOf(early.receiveAll().value_or("")), "ready");
}

TEST(Server, SendsALargeBodyCompletely) {
  RunningServer server;
  const std::string large = filler(20'000'000);
  server.publish(bodiesWith(large));
  EXPECT_TRUE(bodyOf(ask(server.port(), goodRequest())) == large);
}

TEST(Server, FinishesAnAnswerWithItsOwnBodies) {
  RunningServer server;
  const std::string large = filler(20'000'000);
  server.publish(bodiesWith(large));
  const RawClient slow(server.port());
  ASSERT_TRUE(slow.send(goodRequest()));
  // This answer shows that the server has already handled the slow client's request.
  EXPECT_EQ(bodyOf(ask(server.port(), goodRequest())).size(), large.size());
  server.publish(bodiesWith("second"));
  EXPECT_EQ(bodyOf(ask(server.port(), goodRequest())), "second");
  EXPECT_TRUE(bodyOf(slow.receiveAll().value_or("")) == large);
}

}  // namespace
}  // namespace quillmark::sample
