// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

// soak_core POLLS
//
// Polls POLLS times without a pause; a week has 120,960 polls. Ends with 1 if memory,
// descriptors or threads leaked, with 2 if a poll got no answer.

#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "client/Completion.h"
#include "client/IPCClient.h"
#include "client/TaskExecutor.h"
#include "soak/Footprint.h"
#include "soak/SteadyAgent.h"
#include "support/TokenFiles.h"

namespace {

using namespace quillmark;

constexpr long warmUp = 1000;
constexpr long allowedKib = 1024;

boost::asio::awaitable<bool> poll(const IPCClient& client) {
  const auto status = co_await client.getStatus();
  const auto alerts = co_await client.getAlerts();
  const auto connections = co_await client.getNetwork();
  const auto inventory = co_await client.getInventory();
  co_return status.has_value() && alerts.has_value() && connections.has_value() &&
      inventory.has_value();
}

/// False if one failed.
bool pollTimes(const IPCClient& client, long count) {
  for (long done = 0; done < count; ++done) {
    if (!test::completed(poll(client))) {
      std::fprintf(stderr, "poll %ld got no answer\n", done);
      return false;
    }
  }
  return true;
}

}  // namespace

int main(int argc, char* argv[]) {
  const long polls = argc == 2 ? std::strtol(argv[1], nullptr, 10) : 0;
  if (polls <= 0) {
    std::fputs("usage: soak_core POLLS\n", stderr);
    return 2;
  }
  const test::SteadyAgent agent(test::changingAnswers());
  test::writeFile(test::homeTokenPath(), "token");
  const TaskExecutor executor;
  const IPCClient client;

  if (!pollTimes(client, warmUp)) {
    return 2;
  }
  const auto before = test::Footprint::now();
  const auto start = std::chrono::steady_clock::now();
  if (!pollTimes(client, polls)) {
    return 2;
  }
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  const bool held =
      test::report("core", polls, taken.count(), before, test::Footprint::now(), allowedKib);
  return held ? 0 : 1;
}
