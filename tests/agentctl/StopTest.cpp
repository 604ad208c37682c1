// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "agentctl/Children.h"
#include "agentctl/WithAgents.h"
#include "platform/ChildProcess.h"
#include "support/TokenFiles.h"

namespace quillmark::test {
namespace {

// The program of these tests stands where the panel does: were it matched, it
// would be ended itself.
class Stop : public WithAgents {
 protected:
  const Bundle bundle;
};

TEST_F(Stop, EndsEveryAgent) {
  const Bundle other("Other.app");
  startAgent(bundle);
  startAgent(bundle);
  startAgent(other);
  EXPECT_FALSE(stopAgentProcess());
  EXPECT_TRUE(waitUntil(isAlone));
  EXPECT_FALSE(isRunning());
}

TEST_F(Stop, IsFineWithNothingToStop) {
  EXPECT_FALSE(stopAgentProcess());
  EXPECT_FALSE(isRunning());
}

TEST_F(Stop, EndsWhateverHasTheNameInItsCommandLine) {
  ASSERT_TRUE(startBearerOfTheName());
  EXPECT_TRUE(waitUntil([] { return isRunning(); }));
  EXPECT_FALSE(stopAgentProcess());
  EXPECT_TRUE(waitUntil(isAlone));
}

TEST_F(Stop, IsNoEndForThePanelThatCallsIt) {
  startAgent(bundle);
  EXPECT_EQ(bundle.tells("stop"), "ok");
  EXPECT_TRUE(waitUntil([] { return agents().empty(); }));
  EXPECT_EQ(bundle.tells("stop"), "ok");
}

TEST_F(Stop, AsksAgentsToEndAndDoesNotForceThem) {
  ASSERT_FALSE(startDetached({"/bin/bash",
                              {"-c",
                               "trap 'echo asked > \"$0.asked\"; exit' TERM; echo > \"$0.ready\"; "
                               "while :; do sleep 0.1; done",
                               home() + "/tovel-agent"}}));
  ASSERT_TRUE(waitUntil([&] { return std::filesystem::exists(home() + "/tovel-agent.ready"); }));
  EXPECT_FALSE(stopAgentProcess());
  EXPECT_TRUE(waitUntil(isAlone));
  EXPECT_TRUE(std::filesystem::exists(home() + "/tovel-agent.asked"));
}

// One that takes a second leaves its trace before stop returns.
TEST_F(Stop, WaitsUntilItsCommandHasEnded) {
  const auto slow = home() + "/slow";
  writeFile(slow, "#!/bin/sh\nsleep 1\ntouch '" + home() + "/over'\n");
  std::filesystem::permissions(slow, std::filesystem::perms::owner_all);
  EXPECT_EQ(elsewhere({"--bind", slow, "/usr/bin/pgrep"}, {"stop"}), "ok")
      << "the other one is a link to this";
  EXPECT_TRUE(std::filesystem::exists(home() + "/over"));
  EXPECT_TRUE(waitUntil(isAlone));
}

TEST_F(Stop, LeavesNoZombie) {
  startAgent(bundle);
  EXPECT_FALSE(stopAgentProcess());
  EXPECT_TRUE(children().empty());
  EXPECT_FALSE(stopAgentProcess());
  EXPECT_TRUE(children().empty());
}

}  // namespace
}  // namespace quillmark::test
