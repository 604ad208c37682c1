// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <atomic>
#include <cstdint>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "client/AllGets.h"
#include "client/WithTokenFiles.h"
#include "support/Bodies.h"

namespace quillmark::test {
namespace {

constexpr int threadCount = 4;
constexpr int rounds = 25;

class ManyGets : public WithTokenFiles {
 protected:
  ManyGets() { writeFile(systemTokenPath(), "token"); }

  /// Runs `work` on several threads at once.
  template <class Work>
  static void onThreads(const Work& work) {
    std::vector<std::thread> threads;
    for (int i = 0; i < threadCount; ++i) {
      threads.emplace_back([&work, i] { work(i); });
    }
    for (auto& thread : threads) {
      thread.join();
    }
  }
};

TEST_F(ManyGets, OfOneClientFromSeveralThreadsAllComplete) {
  const Backend backend(goodAnswers());
  const IPCClient client;
  const AllGets expected = getAll(client);
  ASSERT_NE(expected.status, std::nullopt);
  std::atomic<int> good = 0;
  onThreads([&](int) {
    for (int round = 0; round < rounds; ++round) {
      good += getAll(client) == expected ? 1 : 0;
    }
  });
  EXPECT_EQ(good, threadCount * rounds);
  EXPECT_EQ(backend.connections(), 4 * (threadCount * rounds + 1));
}

TEST_F(ManyGets, AllStartedAtOnceGetAnAnswerEach) {
  std::atomic<int> count = 0;
  const Backend backend([&](const ReceivedRequest&, Connection& connection) {
    connection.send(
        okAnswer(R"({"protection_enabled":true,"last_alert":"","status":"","threat_count":)" +
                 std::to_string(++count) + R"(,"last_scan":""})"));
  });
  const IPCClient client;
  std::vector<std::vector<std::future<std::optional<AgentStatus>>>> gets(threadCount);
  onThreads([&](int i) {
    for (int round = 0; round < rounds; ++round) {
      gets[static_cast<std::size_t>(i)].push_back(started(client.getStatus()));
    }
  });
  std::set<std::int64_t> numbers;
  for (auto& ofThread : gets) {
    for (auto& get : ofThread) {
      const auto status = get.get();
      ASSERT_TRUE(status);
      numbers.insert(status->threat_count);
    }
  }
  EXPECT_EQ(numbers.size(), threadCount * rounds);
  EXPECT_EQ(*numbers.rbegin(), threadCount * rounds);
}

TEST_F(ManyGets, DoNotWaitForEachOther) {
  const Backend backend([](const ReceivedRequest& request, Connection& connection) {
    if (request.target() == "/api/status") {
      connection.staySilent();
    } else {
      connection.send(okAnswer(inventoryBody));
    }
  });
  const IPCClient client;
  auto silent = started(client.getStatus());
  EXPECT_NE(completed(client.getInventory()), std::nullopt);
  EXPECT_EQ(silent.wait_for(std::chrono::seconds(0)), std::future_status::timeout);
}

TEST_F(ManyGets, OfSeveralClientsShareNothing) {
  const Backend backend(goodAnswers());
  std::atomic<int> good = 0;
  onThreads([&](int) {
    const IPCClient client;
    for (int round = 0; round < rounds; ++round) {
      good += completed(client.getStatus()) ? 1 : 0;
    }
  });
  EXPECT_EQ(good, threadCount * rounds);
}

}  // namespace
}  // namespace quillmark::test
