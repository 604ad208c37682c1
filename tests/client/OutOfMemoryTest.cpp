// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <string>

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include "client/AllGets.h"
#include "client/WithTokenFiles.h"
#include "support/Bodies.h"

namespace quillmark::test {
namespace {

constexpr std::size_t mebibyte = std::size_t{1024} * 1024;

/// Lets this process map `extra` bytes more than it does now; 0 removes the limit.
void limitMemory(std::size_t extra) {
  rlimit limit{};
  getrlimit(RLIMIT_AS, &limit);
  std::size_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  limit.rlim_cur =
      extra == 0 ? limit.rlim_max : pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE)) + extra;
  setrlimit(RLIMIT_AS, &limit);
}

/// Ends this process with 0 if a large body yields nothing with too little memory, and
/// a record with enough.
[[noreturn]] void pollWithLittleMemory(std::size_t extra) {
  writeFile(systemTokenPath(), "token");
  const Backend backend([](const ReceivedRequest&, Connection& connection) {
    static const auto large =
        okAnswer(statusBody + std::string(64 * mebibyte - statusBody.size(), ' '));
    connection.send(large);
  });
  const TaskExecutor executor;
  const IPCClient client;
  const bool enough = completed(client.getStatus()).has_value();
  limitMemory(extra);
  const bool tooLittle = completed(client.getStatus()).has_value();
  limitMemory(0);
  const bool enoughAgain = completed(client.getStatus()).has_value();
  std::_Exit(enough && !tooLittle && enoughAgain ? 0 : 1);
}

class OutOfMemory : public testing::Test {
 protected:
  OutOfMemory() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }
};

TEST_F(OutOfMemory, WhileTheBodyIsReceivedYieldsNothing) {
  EXPECT_EXIT(pollWithLittleMemory(20 * mebibyte), testing::ExitedWithCode(0), "");
}

TEST_F(OutOfMemory, WhileTheBodyIsDecodedYieldsNothing) {
  EXPECT_EXIT(pollWithLittleMemory(150 * mebibyte), testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace quillmark::test
