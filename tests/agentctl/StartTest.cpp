// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <unistd.h>

#include "agentctl/WithAgents.h"
#include "platform/ChildProcess.h"
#include "platform/Files.h"

namespace quillmark::test {
namespace {

class Start : public WithAgents {
 protected:
  const Bundle bundle;
};

TEST_F(Start, StartsTheAgentOfThisBundle) {
  EXPECT_FALSE(isRunning());
  startAgent(bundle);
  EXPECT_TRUE(isRunning());
  EXPECT_TRUE(waitUntil([&] { return bundle.wasStarted(); }))
      << "the agent's working folder is that of the bundle's programs";
  EXPECT_EQ(agents().front().commandLine, "./tovel-agent ");
}

TEST_F(Start, WritesTheAgentsOutputToTheLog) {
  startAgent(bundle);
  EXPECT_TRUE(waitUntil([&] {
    const auto log = contentOf(logFile());
    return log == "to the errors\nto the output\n" || log == "to the output\nto the errors\n";
  })) << contentOf(logFile());
}

TEST_F(Start, LetsTheAgentOutliveThePanelThatStartedIt) {
  startAgent(bundle);
  for (const auto& process : processes()) {
    EXPECT_NE(process.program, "panel");
  }
  EXPECT_NE(agents().front().session, getsid(0)) << "it does not end with the terminal";
}

TEST_F(Start, StartsAnotherAgentEachTime) {
  startAgent(bundle);
  startAgent(bundle);
  EXPECT_EQ(agents().size(), 2U);
  EXPECT_TRUE(isRunning());
}

TEST_F(Start, StartsNothingWithoutTheLogFolder) {
  EXPECT_EQ(bundle.resultOf("start"), "ok") << "the shell's failure is not reported";
  waitForTheShells();
  EXPECT_FALSE(bundle.wasStarted());
  EXPECT_FALSE(isRunning());
  EXPECT_TRUE(namesIn(home()).empty()) << "the folder is not created, either";
}

TEST_F(Start, StartsNothingWithoutAnAgentInTheBundle) {
  makeLogFolder();
  std::filesystem::remove(bundle.programs() + "/" + agentName);
  EXPECT_EQ(bundle.resultOf("start"), "ok");
  waitForTheShells();
  EXPECT_FALSE(isRunning());
}

// The shell redirects to the part before the space, and passes the rest as an argument.
TEST_F(Start, LogsElsewhereWhenTheHomePathHasASpace) {
  const auto spaced = home() + "/my home";
  std::filesystem::create_directories(spaced + "/.quillmark/logs");
  setHome(spaced);
  EXPECT_EQ(bundle.resultOf("start"), "ok");
  EXPECT_TRUE(
      waitUntil([&] { return contentOf(home() + "/my").find("output") != std::string::npos; }));
  EXPECT_EQ(agents().front().commandLine, "./tovel-agent home/.quillmark/logs/backend.log ");
  EXPECT_TRUE(namesIn(spaced + "/.quillmark/logs").empty());
}

TEST_F(Start, RefusesAHomePathWithACommand) {
  for (const std::string part : {"$(touch injected)", "`touch injected`", "a;touch injected", "a&b",
                                 "a|b", "a>b", "<(b)", "two\nlines"}) {
    setHome(home() + "/" + part);
    std::filesystem::create_directories(home() + "/" + part + "/.quillmark/logs");
    EXPECT_EQ(bundle.resultOf("start"),
              "Error: The home path contains a character that would make the shell run a command")
        << testing::PrintToString(part);
  }
  waitForTheShells();
  EXPECT_FALSE(bundle.wasStarted());
  EXPECT_EQ(namesIn(bundle.programs()), (std::set<std::string>{"panel", agentName}))
      << "nothing else was run";
}

// Both quotes disappear from the path of the log.
TEST_F(Start, LogsElsewhereWhenTheHomePathHasAPairOfQuotes) {
  std::filesystem::create_directories(home() + "/ab/.quillmark/logs");
  setHome(home() + "/\"a\"b");
  EXPECT_EQ(bundle.resultOf("start"), "ok");
  EXPECT_TRUE(waitUntil([&] {
    return contentOf(home() + "/ab/.quillmark/logs/backend.log").find("output") !=
           std::string::npos;
  }));
}

TEST_F(Start, StartsNothingWhenTheHomePathHasASingleQuotationMark) {
  for (const std::string part : {"Ann's", "5\" disk"}) {
    setHome(home() + "/" + part);
    std::filesystem::create_directories(home() + "/" + part + "/.quillmark/logs");
    EXPECT_EQ(bundle.resultOf("start"), "ok") << "the shell's failure is not reported";
    waitForTheShells();
    EXPECT_FALSE(bundle.wasStarted());
  }
}

TEST_F(Start, LeavesNoZombie) {
  makeLogFolder();
  for (int i = 0; i < 5; ++i) {
    ASSERT_FALSE(startDetached(startCommand(bundle.path(), home())));
  }
  EXPECT_TRUE(waitUntil([] { return agents().size() == 5; }));
  EXPECT_TRUE(waitUntil([] { return children().empty(); }));
}

TEST_F(Start, WritesTheShellsOwnErrorsToThePanelsErrorStream) {
  testing::internal::CaptureStderr();
  EXPECT_FALSE(startDetached(startCommand(bundle.path(), home())));
  waitForTheShells();
  EXPECT_TRUE(waitUntil([] { return children().empty(); }));
  const auto errors = testing::internal::GetCapturedStderr();
  EXPECT_NE(errors.find("backend.log: No such file or directory"), std::string::npos) << errors;
}

}  // namespace
}  // namespace quillmark::test
