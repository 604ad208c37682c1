// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "agentctl/WithAgents.h"
#include "platform/ChildProcess.h"

namespace quillmark::test {
namespace {

class Probe : public WithAgents {
 protected:
  const Bundle bundle;
};

// Its own shell has the name in its command line for a moment.
TEST_F(Probe, NeverFindsItself) {
  for (int i = 0; i < 50; ++i) {
    ASSERT_FALSE(isRunning());
  }
}

TEST_F(Probe, NeverFindsThePanel) {
  for (int i = 0; i < 10; ++i) {
    ASSERT_EQ(bundle.resultOf("probe"), "not running");
  }
}

TEST_F(Probe, FindsAnAgentThatThePanelDidNotStart) {
  std::filesystem::create_symlink("/bin/bash", home() + "/" + agentName);
  ASSERT_FALSE(startDetached({home() + "/" + agentName, {"-c", "while :; do sleep 0.1; done"}}));
  EXPECT_TRUE(waitUntil([] { return isRunning(); }));
  EXPECT_EQ(bundle.resultOf("probe"), "running");
}

TEST_F(Probe, FindsOneThatAnotherPanelStarted) {
  startAgent(bundle);
  EXPECT_EQ(Bundle("Other.app").resultOf("probe"), "running");
}

TEST_F(Probe, DetectsThatAnAgentHasEnded) {
  startAgent(bundle);
  EXPECT_TRUE(isRunning());
  endProcessesWithTheName();
  EXPECT_FALSE(isRunning());
}

TEST_F(Probe, LeavesNoZombie) {
  EXPECT_FALSE(isRunning());
  EXPECT_TRUE(children().empty());
  startAgent(bundle);
  EXPECT_TRUE(isRunning());
  EXPECT_TRUE(children().empty());
}

}  // namespace
}  // namespace quillmark::test
