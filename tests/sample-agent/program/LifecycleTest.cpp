// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <string>
#include <thread>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <boost/asio/io_context.hpp>

#include "Server.h"
#include "sample-agent/program/ProgramTest.h"

namespace quillmark::sample::test {
namespace {

class Lifecycle : public ProgramTest {
 protected:
  [[nodiscard]] static bool isOneLine(const std::string& text) {
    return std::count(text.begin(), text.end(), '\n') == 1 && text.ends_with('\n');
  }
};

TEST_F(Lifecycle, EndsCleanlyOnASignal) {
  for (const int signal : {SIGTERM, SIGINT}) {
    AgentProgram agent;
    ASSERT_TRUE(agent.waitUntilReady()) << agent.errors();
    EXPECT_EQ(agent.stop(signal), 0);
    EXPECT_EQ(agent.errors(), "");
    EXPECT_EQ(agent.output(), "listening on 127.0.0.1:7823, token in " + tokenFile() + "\n");
  }
}

TEST_F(Lifecycle, EndsCleanlyDuringRequests) {
  AgentProgram agent;
  ASSERT_TRUE(agent.waitUntilReady()) << agent.errors();
  const RawClient unfinished(programPort);
  ASSERT_TRUE(unfinished.send("GET /api/status HTTP/1.1\r\n"));
  // This answer shows that the server has accepted the connection before it.
  EXPECT_EQ(statusOf(get("/api/status")), 200);
  EXPECT_EQ(agent.stop(SIGTERM), 0);
  EXPECT_EQ(agent.errors(), "");
}

TEST_F(Lifecycle, KeepsItsTokenPrivateAndForTheNextStart) {
  std::string first;
  {
    AgentProgram agent;
    ASSERT_TRUE(agent.waitUntilReady()) << agent.errors();
    struct stat status {};
    ASSERT_EQ(stat(tokenFile().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & ALLPERMS, 0600U);
    first = token();
    EXPECT_EQ(first.size(), 64U);
    EXPECT_EQ(agent.stop(SIGTERM), 0);
  }
  EXPECT_EQ(token(), first) << "it stays when the agent ends";

  AgentProgram agent;
  ASSERT_TRUE(agent.waitUntilReady()) << agent.errors();
  EXPECT_EQ(token(), first);
  EXPECT_EQ(statusOf(get("/api/status")), 200);
}

TEST_F(Lifecycle, KeepsAnOrdinaryUsersTokenInTheHomeDirectory) {
  AgentProgram agent(AgentProgram::User::ordinary);
  ASSERT_TRUE(agent.waitUntilReady()) << agent.errors();
  const auto path = agent.home() + "/.quillmark/token";
  EXPECT_EQ(agent.output(), "listening on 127.0.0.1:7823, token in " + path + "\n");
  struct stat status {};
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & ALLPERMS, 0600U);
  EXPECT_NE(status.st_uid, 0U);
  RequestText request;
  request.token = readSystemFile(path).value_or("");
  EXPECT_EQ(statusOf(ask(programPort, request.text())), 200);
}

TEST_F(Lifecycle, ServesOnceWhenStartedTwiceAtTheSameTime) {
  for (int round = 0; round < 5; ++round) {
    SetUp();
    AgentProgram one;
    AgentProgram other;
    while (!one.hasEnded() && !other.hasEnded()) {
      std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    AgentProgram& loser = one.hasEnded() ? one : other;
    AgentProgram& server = one.hasEnded() ? other : one;
    EXPECT_EQ(loser.waitForEnd(), 1);
    EXPECT_TRUE(isOneLine(loser.errors())) << loser.errors();
    ASSERT_TRUE(server.waitUntilReady()) << server.errors();
    EXPECT_EQ(statusOf(get("/api/status")), 200) << "the file holds the token of the server";
    EXPECT_EQ(server.stop(SIGTERM), 0);
  }
}

TEST_F(Lifecycle, ReportsThatThePortIsInUse) {
  AgentProgram first;
  ASSERT_TRUE(first.waitUntilReady()) << first.errors();
  AgentProgram second;
  EXPECT_EQ(second.waitForEnd(), 1);
  EXPECT_EQ(second.errors(), "127.0.0.1:7823: Address already in use\n");
  EXPECT_EQ(second.output(), "");
  EXPECT_EQ(statusOf(get("/api/status")), 200) << "the first still serves";
}

TEST_F(Lifecycle, StartsWithTheSameTokenAndPortAfterItWasKilled) {
  std::string first;
  {
    AgentProgram agent;
    ASSERT_TRUE(agent.waitUntilReady()) << agent.errors();
    first = token();
    // Connections in several states remain in the system.
    const RawClient waiting(programPort);
    ASSERT_TRUE(waiting.send("GET /api"));
    EXPECT_EQ(statusOf(get("/api/status")), 200);
    EXPECT_EQ(agent.stop(SIGKILL), -SIGKILL);
  }
  EXPECT_EQ(token(), first) << "the token file is stale now";
  AgentProgram agent;
  ASSERT_TRUE(agent.waitUntilReady()) << agent.errors();
  EXPECT_EQ(token(), first);
  EXPECT_EQ(statusOf(get("/api/status")), 200);
}

// Clients would send it to the process that has the port.
TEST_F(Lifecycle, CreatesNoTokenIfAnotherProcessHasThePort) {
  boost::asio::io_context context;
  const auto other = listenForClients(context);
  ASSERT_TRUE(other);
  AgentProgram agent;
  EXPECT_EQ(agent.waitForEnd(), 1);
  EXPECT_EQ(agent.errors(), "127.0.0.1:7823: Address already in use\n");
  EXPECT_FALSE(std::filesystem::exists(tokenFile()));
}

TEST_F(Lifecycle, RefusesAMalformedConfiguration) {
  const auto path = home() + "/.config/quillmark/config.toml";
  writeFile(path, "[agent]\nserver_url = \"https://a\"b\"\n");
  AgentProgram agent;
  EXPECT_EQ(agent.waitForEnd(), 2);
  EXPECT_TRUE(agent.errors().starts_with(path + ":2:")) << agent.errors();
  EXPECT_TRUE(isOneLine(agent.errors())) << agent.errors();
  EXPECT_FALSE(std::filesystem::exists(tokenFile())) << "it did not start to serve";
}

TEST_F(Lifecycle, FollowsTheConfiguration) {
  writeFile(home() + "/.quillmark/config.toml",
            "[detection]\nenabled = false\n[protection]\nenabled = true\n"
            "[telemetry]\ncollect_network = false\ncollect_services = false\n");
  AgentProgram agent;
  ASSERT_TRUE(agent.waitUntilReady()) << agent.errors();
  const auto status = bodyOf(get("/api/status"));
  EXPECT_TRUE(
      status.starts_with("{\"protection_enabled\":true,\"threat_count\":0,"
                         "\"last_alert\":\"Detection is switched off\","))
      << status;
  EXPECT_EQ(bodyOf(get("/api/network")), R"({"connections":[]})");
  EXPECT_NE(bodyOf(get("/api/inventory")).find("\"services\":[],"), std::string::npos);
}

TEST_F(Lifecycle, RefusesAFolderInPlaceOfTheTokenFile) {
  std::filesystem::create_directories(tokenFile());
  AgentProgram agent;
  EXPECT_EQ(agent.waitForEnd(), 1);
  EXPECT_EQ(agent.errors(), tokenFile() + ": not a regular file\n");
}

}  // namespace
}  // namespace quillmark::sample::test
