// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "agentctl/Children.h"
#include "agentctl/WithAgents.h"

namespace quillmark::test {
namespace {

/// The first line that the driver prints for `action` with an empty /usr/bin.
std::string withoutPrograms(const std::string& action) {
  return elsewhere({"--tmpfs", "/usr/bin"}, {action});
}

/// The same where the program at `path` may not be run.
std::string withForbidden(const std::string& path, const std::string& action) {
  return elsewhere({"--bind", "/dev/null", path}, {action});
}

class MissingPrograms : public WithAgents {};

TEST_F(MissingPrograms, AreReportedByStartWithTheSystemsMessage) {
  EXPECT_EQ(withoutPrograms("start"), "Error: No such file or directory");
  EXPECT_EQ(withForbidden("/usr/bin/bash", "start"), "Error: Permission denied");
}

TEST_F(MissingPrograms, AreReportedByStopWithTheSystemsMessage) {
  EXPECT_EQ(withoutPrograms("stop"), "Error: No such file or directory");
  EXPECT_EQ(withForbidden("/usr/bin/pgrep", "stop"), "Error: Permission denied")
      << "pkill is a link to pgrep";
}

TEST_F(MissingPrograms, AreReportedByTheProbeWithTheSystemsMessage) {
  EXPECT_EQ(withoutPrograms("probe"), "Error: No such file or directory");
  EXPECT_EQ(withForbidden("/usr/bin/bash", "probe"), "Error: Permission denied");
}

TEST_F(MissingPrograms, MeanNoRunningAgentIfTheProbesShellLacksThem) {
  const Bundle bundle;
  startAgent(bundle);
  EXPECT_EQ(elsewhere({}, {"probe"}), "running");
  EXPECT_EQ(withForbidden("/usr/bin/pgrep", "probe"), "not running");
}

}  // namespace
}  // namespace quillmark::test
