// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cerrno>
#include <cstring>
#include <functional>
#include <string>

#include <gtest/gtest.h>

#include <sched.h>
#include <sys/mount.h>

#include "agentctl/WithAgents.h"

namespace quillmark::test {
namespace {

/// What `action` returns on a machine with nothing in the folder of programs.
std::string withoutPrograms(const std::function<std::string()>& action) {
  return inNamespaces(CLONE_NEWNS, [&]() -> std::string {
    if (mount("none", "/usr/bin", "tmpfs", 0, nullptr) != 0) {
      return std::string("mount: ") + std::strerror(errno);
    }
    return action();
  });
}

/// And on one where the program at `path` may not be run.
std::string withBarred(const char* path, const std::function<std::string()>& action) {
  return inNamespaces(CLONE_NEWNS, [&]() -> std::string {
    if (mount("/dev/null", path, nullptr, MS_BIND, nullptr) != 0) {
      return std::string("mount: ") + std::strerror(errno);
    }
    return action();
  });
}

class MissingPrograms : public WithAgents {};

TEST_F(MissingPrograms, AreAnErrorOfStartInTheSystemsWords) {
  EXPECT_EQ(withoutPrograms([] { return startAgentProcess().message(); }),
            "No such file or directory");
  EXPECT_EQ(withBarred("/usr/bin/bash", [] { return startAgentProcess().message(); }),
            "Permission denied");
}

TEST_F(MissingPrograms, AreAnErrorOfStopInTheSystemsWords) {
  EXPECT_EQ(withoutPrograms([] { return stopAgentProcess().message(); }),
            "No such file or directory");
  EXPECT_EQ(withBarred("/usr/bin/pkill", [] { return stopAgentProcess().message(); }),
            "Permission denied");
}

TEST_F(MissingPrograms, AreAnErrorOfTheProbeInTheSystemsWords) {
  const auto told = [] {
    boost::system::error_code error;
    const std::string answer = probeAgentProcess(error) ? "running, " : "not running, ";
    return answer + error.message();
  };
  EXPECT_EQ(withoutPrograms(told), "not running, No such file or directory");
  EXPECT_EQ(withBarred("/usr/bin/bash", told), "not running, Permission denied");
  EXPECT_EQ(inNamespaces(CLONE_NEWNS, told), "not running, Success");
}

TEST_F(MissingPrograms, AreNoRunningAgentWithoutAReason) {
  const Bundle bundle;
  startAgent(bundle);
  const auto probed = [] { return std::string(probeAgentProcess() ? "running" : "not running"); };
  EXPECT_EQ(inNamespaces(CLONE_NEWNS, probed), "running");
  EXPECT_EQ(withoutPrograms(probed), "not running");
  EXPECT_EQ(withBarred("/usr/bin/pgrep", probed), "not running");
}

}  // namespace
}  // namespace quillmark::test
