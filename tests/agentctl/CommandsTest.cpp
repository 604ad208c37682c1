// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "agentctl/AgentProcess.h"

namespace quillmark::test {
namespace {

TEST(Commands, StartRunsTheAgentOfTheBundleInTheBackgroundWithItsOutputInTheLog) {
  const Command expected{"/bin/bash",
                         {"-c",
                          "cd '/Applications/X.app/Contents/MacOS' && ./tovel-agent > "
                          "/Users/u/.quillmark/logs/backend.log 2>&1 &"}};
  EXPECT_EQ(startCommand("/Applications/X.app", "/Users/u"), expected);
}

TEST(Commands, StartUsesBothPathsUnchanged) {
  const Command expected{"/bin/bash",
                         {"-c",
                          "cd '/opt/My \"App\"/$X/Contents/MacOS' && ./tovel-agent > "
                          "/home/a b/.quillmark/logs/backend.log 2>&1 &"}};
  EXPECT_EQ(startCommand("/opt/My \"App\"/$X", "/home/a b"), expected);
}

TEST(Commands, StopMatchesTheWholeCommandLine) {
  EXPECT_EQ(stopCommand(), (Command{"/usr/bin/pkill", {"-f", "tovel-agent"}}));
}

TEST(Commands, ProbeSearchesThroughAShell) {
  EXPECT_EQ(probeCommand(), (Command{"/bin/bash", {"-c", "pgrep -f tovel-agent"}}));
}

}  // namespace
}  // namespace quillmark::test
