// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <filesystem>
#include <string>

#include "agentctl/AgentProcess.h"
#include "agentctl/Bundle.h"
#include "agentctl/Processes.h"
#include "agentctl/WithHome.h"
#include "platform/Waiting.h"

namespace quillmark::test {

/// Tests with real processes, none of which bears the agent's name before and
/// after.
class WithAgents : public WithHome {
 protected:
  WithAgents() { endBearersOfTheName(); }
  ~WithAgents() override { endBearersOfTheName(); }

  void makeLogFolder() const { std::filesystem::create_directories(home() + "/.quillmark/logs"); }
  [[nodiscard]] std::string logFile() const { return home() + "/.quillmark/logs/backend.log"; }

  /// What the probe finds; it must have been able to tell.
  [[nodiscard]] static bool isRunning() {
    boost::system::error_code error;
    const bool running = probeAgentProcess(error);
    EXPECT_FALSE(error) << error.message();
    return running;
  }

  /// An agent comes up, and its log is made for it.
  void startAgent(const Bundle& bundle) const {
    makeLogFolder();
    const auto before = agents().size();
    ASSERT_EQ(bundle.tells("start"), "ok");
    ASSERT_TRUE(waitUntil([&] { return agents().size() == before + 1; }));
  }

  /// The shell that was to start an agent has come to its end, so that what was
  /// not started by now never will be.
  static void waitForTheShells() { ASSERT_TRUE(waitUntil(isAlone)); }
};

}  // namespace quillmark::test
