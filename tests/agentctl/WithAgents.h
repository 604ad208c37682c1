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

/// Tests with real processes. Before and after each test, none has the agent's name.
class WithAgents : public WithHome {
 protected:
  WithAgents() { endProcessesWithTheName(); }
  ~WithAgents() override { endProcessesWithTheName(); }

  void makeLogFolder() const { std::filesystem::create_directories(home() + "/.quillmark/logs"); }
  [[nodiscard]] std::string logFile() const { return home() + "/.quillmark/logs/backend.log"; }

  /// What the probe finds; the probe itself must succeed.
  [[nodiscard]] static bool isRunning() {
    boost::system::error_code error;
    const bool running = probeAgentProcess(error);
    EXPECT_FALSE(error) << error.message();
    return running;
  }

  /// Creates the log folder and starts an agent.
  void startAgent(const Bundle& bundle) const {
    makeLogFolder();
    const auto before = agents().size();
    ASSERT_EQ(bundle.resultOf("start"), "ok");
    ASSERT_TRUE(waitUntil([&] { return agents().size() == before + 1; }));
  }

  /// Waits for the end of the shell that starts an agent: what it has not started by then
  /// is never started.
  static void waitForTheShells() { ASSERT_TRUE(waitUntil(isAlone)); }
};

}  // namespace quillmark::test
