// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <cstddef>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include "sample-agent/RunningServer.h"
#include "support/Patience.h"

namespace quillmark::sample {
namespace {

using namespace test;
using std::chrono::milliseconds;

TEST(ServerLimits, RefuseAHeaderThatIsTooLarge) {
  const RunningServer server;
  RequestText request;
  request.token = agentToken;
  request.moreFields = "X-Filler: " + filler(7000) + "\r\n";
  EXPECT_EQ(statusOf(ask(server.port(), request.text())), 200);
  request.moreFields = "X-Filler: " + filler(9000) + "\r\n";
  EXPECT_EQ(statusOf(ask(server.port(), request.text())), 431);
  EXPECT_EQ(statusOf(ask(server.port(), "GET /" + filler(9000))), 431) << "a line without an end";
  std::string manyFields;
  for (int i = 0; i < 2000; ++i) {
    manyFields += "A: b\r\n";
  }
  request.moreFields = manyFields;
  EXPECT_EQ(statusOf(ask(server.port(), request.text())), 431);
}

TEST(ServerLimits, CloseAConnectionAtItsDeadline) {
  ServerLimits limits;
  limits.deadline = milliseconds(50);
  RunningServer server(limits);
  const RawClient silent(server.port());
  EXPECT_EQ(silent.receiveAll(), "");

  const RawClient slow(server.port());
  ASSERT_TRUE(slow.send("GET /api/status HTTP/1.1\r\n"));
  EXPECT_EQ(slow.receiveAll(), "");

  server.publish(bodiesWith(filler(50'000'000)));
  const RawClient sluggish(server.port());
  ASSERT_TRUE(sluggish.send(goodRequest()));
  EXPECT_LT(sluggish.receiveAll(milliseconds(10)).value_or("").size(), 50'000'000U);
}

TEST(ServerLimits, KeepTheDeadlineWhenBytesArrive) {
  ServerLimits limits;
  limits.deadline = milliseconds(200);
  const RunningServer server(limits);
  const RawClient trickling(server.port());
  const auto end = std::chrono::steady_clock::now() + quillmark::test::patience();
  while (trickling.send("x") && std::chrono::steady_clock::now() < end) {
    std::this_thread::sleep_for(milliseconds(20));
  }
  EXPECT_LT(std::chrono::steady_clock::now(), end);
}

TEST(ServerLimits, CloseTheOldestConnectionForTheNewest) {
  ServerLimits limits;
  limits.connections = 4;
  limits.deadline = std::chrono::hours(1);
  const RunningServer server(limits);
  std::vector<std::unique_ptr<RawClient>> clients;
  clients.reserve(limits.connections);
  for (int i = 0; i < 4; ++i) {
    clients.push_back(std::make_unique<RawClient>(server.port()));
  }
  EXPECT_EQ(statusOf(ask(server.port(), goodRequest())), 200);
  EXPECT_EQ(clients[0]->receiveAll(), "") << "the oldest was closed";
  for (std::size_t i = 1; i < clients.size(); ++i) {
    ASSERT_TRUE(clients[i]->send(goodRequest()));
    EXPECT_EQ(statusOf(clients[i]->receiveAll().value_or("")), 200) << i;
  }
}

TEST(ServerLimits, LeaveDescriptorsToTheScans) {
  rlimit usual{};
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &usual), 0);
  auto few = usual;
  few.rlim_cur = 40;
  ServerLimits limits;
  limits.deadline = std::chrono::hours(1);
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &few), 0);
  const RunningServer server(limits);
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &usual), 0);  // The clients need descriptors, too.

  std::vector<std::unique_ptr<RawClient>> clients;
  for (int i = 0; i < 25; ++i) {
    clients.push_back(std::make_unique<RawClient>(server.port()));
  }
  EXPECT_EQ(clients[0]->receiveAll(), "") << "the oldest was closed";
  ASSERT_TRUE(clients[1]->send(goodRequest()));
  EXPECT_EQ(statusOf(clients[1]->receiveAll().value_or("")), 200);
}

}  // namespace
}  // namespace quillmark::sample
