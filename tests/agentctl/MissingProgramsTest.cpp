// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "agentctl/Children.h"
#include "agentctl/WithAgents.h"

namespace quillmark::test {
namespace {

/// What the user reads after `action` with nothing in the folder of programs.
std::string withoutPrograms(const std::string& action) {
  return elsewhere({"--tmpfs", "/usr/bin"}, {action});
}

/// And where the program at `path` may not be run.
std::string withBarred(const std::string& path, const std::string& action) {
  return elsewhere({"--bind", "/dev/null", path}, {action});
}

class MissingPrograms : public WithAgents {};

TEST_F(MissingPrograms, AreAnErrorOfStartInTheSystemsWords) {
  EXPECT_EQ(withoutPrograms("start"), "Error: No such file or directory");
  EXPECT_EQ(withBarred("/usr/bin/bash", "start"), "Error: Permission denied");
}

TEST_F(MissingPrograms, AreAnErrorOfStopInTheSystemsWords) {
  EXPECT_EQ(withoutPrograms("stop"), "Error: No such file or directory");
  EXPECT_EQ(withBarred("/usr/bin/pgrep", "stop"), "Error: Permission denied")
      << "the other one is a link to this";
}

TEST_F(MissingPrograms, AreAnErrorOfTheProbeInTheSystemsWords) {
  EXPECT_EQ(withoutPrograms("probe"), "Error: No such file or directory");
  EXPECT_EQ(withBarred("/usr/bin/bash", "probe"), "Error: Permission denied");
}

TEST_F(MissingPrograms, AreNoRunningAgentToTheProbesShell) {
  const Bundle bundle;
  startAgent(bundle);
  EXPECT_EQ(elsewhere({}, {"probe"}), "running");
  EXPECT_EQ(withBarred("/usr/bin/pgrep", "probe"), "not running");
}

}  // namespace
}  // namespace quillmark::test
