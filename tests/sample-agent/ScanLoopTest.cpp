// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "ScanLoop.h"

#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

#include <gtest/gtest.h>

#include "model/Codec.h"
#include "sample-agent/WithScannedMachine.h"
#include "support/Patience.h"

namespace quillmark::sample {
namespace {

using ScanLoopTest = test::WithScannedMachine;

/// Waits for a number of scans.
class Counter {
 public:
  [[nodiscard]] ScanLoop::Publish publish() {
    return [this](std::shared_ptr<const AnswerBodies> bodies) {
      const std::lock_guard lock(mutex_);
      last_ = std::move(bodies);
      ++count_;
      changed_.notify_all();
    };
  }
  [[nodiscard]] bool reached(int count) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, quillmark::test::patience(), [&] { return count_ >= count; });
  }
  [[nodiscard]] std::shared_ptr<const AnswerBodies> last() {
    const std::lock_guard lock(mutex_);
    return last_;
  }

 private:
  std::mutex mutex_;
  std::condition_variable changed_;
  std::shared_ptr<const AnswerBodies> last_;
  int count_ = 0;
};

TEST_F(ScanLoopTest, ScansImmediatelyAndCanEndDuringItsPause) {
  Scanner scanner(paths_, {});
  Counter counter;
  std::ostringstream log;
  const ScanLoop loop(scanner, std::chrono::hours(1), counter.publish(), log);
  ASSERT_TRUE(counter.reached(1));
  EXPECT_TRUE(decode<AgentStatus>(counter.last()->status));
}

TEST_F(ScanLoopTest, ScansRepeatedlyAndLogsANoteOnce) {
  tree_.folder("home/ann");
  WalkLimits limits;
  limits.depth = 0;
  Scanner scanner(paths_, {}, limits);
  Counter counter;
  std::ostringstream log;
  {
    const ScanLoop loop(scanner, std::chrono::milliseconds(1), counter.publish(), log);
    ASSERT_TRUE(counter.reached(3));
  }
  EXPECT_EQ(log.str(), "the search for set-user-ID files in " + tree_.path("home") +
                           " reached its limit; not all files were looked at\n");
}

TEST_F(ScanLoopTest, ContinuesAfterAFailedScan) {
  Scanner scanner(paths_, {});
  Counter counter;
  std::ostringstream log;
  int calls = 0;
  {
    const auto publish = counter.publish();
    const ScanLoop loop(
        scanner, std::chrono::milliseconds(1),
        [&](std::shared_ptr<const AnswerBodies> bodies) {
          if (++calls == 1) {
            throw std::runtime_error("out of something");
          }
          publish(std::move(bodies));
        },
        log);
    ASSERT_TRUE(counter.reached(1));
  }
  EXPECT_EQ(log.str(), "scan failed: out of something\n");
}

}  // namespace
}  // namespace quillmark::sample
