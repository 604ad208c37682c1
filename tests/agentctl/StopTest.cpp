// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "agentctl/Children.h"
#include "agentctl/WithAgents.h"
#include "platform/ChildProcess.h"
#include "support/TokenFiles.h"

namespace quillmark::test {
namespace {

// The test program takes the panel's place: if its command line matched, it would be
// ended, too.
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

TEST_F(Stop, SucceedsWithNothingToStop) {
  EXPECT_FALSE(stopAgentProcess());
  EXPECT_FALSE(isRunning());
}

TEST_F(Stop, EndsEveryProcessWithTheNameInItsCommandLine) {
  ASSERT_TRUE(startProcessWithTheName());
  EXPECT_TRUE(waitUntil([] { return isRunning(); }));
  EXPECT_FALSE(stopAgentProcess());
  EXPECT_TRUE(waitUntil(isAlone));
}

TEST_F(Stop, DoesNotEndThePanelThatCallsIt) {
  startAgent(bundle);
  EXPECT_EQ(bundle.resultOf("stop"), "ok");
  EXPECT_TRUE(waitUntil([] { return agents().empty(); }));
  EXPECT_EQ(bundle.resultOf("stop"), "ok");
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

// A command that takes a second has written its file before stop returns.
TEST_F(Stop, WaitsUntilItsCommandHasEnded) {
  const auto slow = home() + "/slow";
  writeFile(slow, "#!/bin/sh\nsleep 1\ntouch '" + home() + "/over'\n");
  std::filesystem::permissions(slow, std::filesystem::perms::owner_all);
  EXPECT_EQ(elsewhere({"--bind", slow, "/usr/bin/pgrep"}, {"stop"}), "ok")
      << "pkill is a link to pgrep";
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
