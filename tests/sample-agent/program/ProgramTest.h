// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <string_view>

#include <gtest/gtest.h>
#include <unistd.h>

#include "Token.h"
#include "procfs/SystemFile.h"
#include "sample-agent/FixtureTree.h"
#include "sample-agent/RawClient.h"
#include "sample-agent/program/AgentProgram.h"

namespace quillmark::sample::test {

/// Each test starts as on a machine on which the agent has never run. The paths and the
/// port are the real ones, so it runs only in the sandbox.
class ProgramTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_NE(std::getenv("QUILLMARK_SANDBOX"), nullptr) << "run it by tests/support/sandbox";
    std::filesystem::remove_all(tokenFolder());
    std::filesystem::remove_all(home() + "/.quillmark");
    std::filesystem::remove_all(home() + "/.config/quillmark");
  }

  [[nodiscard]] static std::string home() { return std::getenv("HOME"); }
  [[nodiscard]] static std::string tokenFile() { return tokenPath(geteuid(), home()); }
  [[nodiscard]] static std::string tokenFolder() {
    return std::filesystem::path(tokenFile()).parent_path();
  }
  [[nodiscard]] static std::string token() { return readSystemFile(tokenFile()).value_or(""); }

  static void writeFile(const std::string& path, std::string_view content) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream(path, std::ios::binary) << content;
  }

  [[nodiscard]] static std::string get(const std::string& target) {
    RequestText request;
    request.target = target;
    request.token = token();
    return ask(programPort, request.text());
  }
};

/// With a running agent, and a request that it answers.
class RunningProgramTest : public ProgramTest {
 protected:
  void SetUp() override {
    ProgramTest::SetUp();
    if (!HasFatalFailure()) {
      agent_ = std::make_unique<AgentProgram>();
      ASSERT_TRUE(agent_->waitUntilReady()) << agent_->errors();
      good_.token = token();
    }
  }

  std::unique_ptr<AgentProgram> agent_;
  RequestText good_;
};

}  // namespace quillmark::sample::test
