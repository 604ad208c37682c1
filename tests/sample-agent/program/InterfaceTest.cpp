// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include "model/Codec.h"
#include "sample-agent/program/ProgramTest.h"

namespace quillmark::sample::test {
namespace {

class Interface : public RunningProgramTest {
 protected:
  [[nodiscard]] int statusOfRequest(const RequestText& request) const {
    return statusOf(ask(programPort, request.text()));
  }

  [[nodiscard]] std::ptrdiff_t openSockets() const {
    const auto folder = "/proc/" + std::to_string(agent_->pid()) + "/fd";
    const auto descriptors = namesIn(folder);
    return std::count_if(descriptors.begin(), descriptors.end(), [&](const auto& name) {
      return readLink(folder + '/' + name).value_or("").starts_with("socket:");
    });
  }
};

TEST_F(Interface, AnswersTheFourRequests) {
  EXPECT_TRUE(decode<AgentStatus>(bodyOf(get("/api/status"))));
  EXPECT_TRUE(decode<AlertsResponse>(bodyOf(get("/api/alerts"))));
  const auto network = decode<NetworkResponse>(bodyOf(get("/api/network")));
  ASSERT_TRUE(network);
  const NetworkConnection own = {
      "tcp", "127.0.0.1", "7823", "0.0.0.0", "*", "LISTEN", std::to_string(agent_->pid()), "low"};
  EXPECT_NE(std::find(network->connections.begin(), network->connections.end(), own),
            network->connections.end());
  const auto inventory = decode<InventoryData>(bodyOf(get("/api/inventory")));
  ASSERT_TRUE(inventory);
  EXPECT_EQ(inventory->network_interfaces, std::vector<std::string>{"lo"});
  EXPECT_EQ(std::count_if(inventory->services.begin(), inventory->services.end(),
                          [](const auto& name) { return name.ends_with("-agent"); }),
            1)
      << "the agent is one of the services";
}

TEST_F(Interface, ListensOnLoopbackAddressOneOnly) {
  const int descriptor = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(programPort);
  // Any other address of this machine; in the sandbox there are no more.
  inet_pton(AF_INET, "127.0.0.2", &address.sin_addr);
  EXPECT_NE(connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  EXPECT_EQ(errno, ECONNREFUSED);
  close(descriptor);
}

TEST_F(Interface, ServesAtOnceDespiteAThousandSlowConnections) {
  rlimit files{};
  ASSERT_EQ(getrlimit(RLIMIT_NOFILE, &files), 0);
  files.rlim_cur = std::min<rlim_t>(files.rlim_max, 4096);
  ASSERT_EQ(setrlimit(RLIMIT_NOFILE, &files), 0);

  std::vector<std::unique_ptr<RawClient>> slow;
  for (int i = 0; i < 1000; ++i) {
    slow.push_back(std::make_unique<RawClient>(programPort));
    ASSERT_TRUE(slow.back()->isConnected()) << i;
    slow.back()->send("GET /api/status HTTP/1.1\r\nX-Filler: " + std::string(4000, 'x'));
  }
  EXPECT_EQ(statusOfRequest(good_), 200);
  EXPECT_LE(openSockets(), 65) << "the listening one, and 64 clients";
  EXPECT_GE(openSockets(), 60) << "the slow ones are open, too";
}

class Findings : public ProgramTest {
 protected:
  /// All except those about home directories of this machine's users, which are visible
  /// in the sandbox.
  [[nodiscard]] static std::vector<ThreatAlert> alerts() {
    auto response = decode<AlertsResponse>(bodyOf(get("/api/alerts")));
    if (!response) {
      ADD_FAILURE() << response.error().detail;
      return {};
    }
    std::erase_if(response->alerts, [](const ThreatAlert& alert) {
      return alert.file_path.value_or("").starts_with("/home/");
    });
    return response->alerts;
  }

  [[nodiscard]] static bool reports(const std::vector<ThreatAlert>& alerts, const std::string& type,
                                    const std::string& path) {
    return std::any_of(alerts.begin(), alerts.end(), [&](const ThreatAlert& alert) {
      return alert.alert_type == type && alert.file_path == path;
    });
  }
};

TEST_F(Findings, AreNoneOnACleanMachine) {
  AgentProgram agent;
  ASSERT_TRUE(agent.waitUntilReady()) << agent.errors();
  EXPECT_EQ(alerts(), std::vector<ThreatAlert>{});
}

TEST_F(Findings, ShowASetUidFileAndADeletedProgramThatRuns) {
  const FixtureTree tree;
  tree.write("tool", "");
  tree.setMode("tool", 04755);
  const auto program = tree.path("sleeper");
  std::filesystem::copy_file("/bin/sleep", program);
  pid_t sleeper = 0;
  std::array<char*, 3> arguments = {const_cast<char*>("sleeper"), const_cast<char*>("1000"),
                                    nullptr};
  ASSERT_EQ(posix_spawn(&sleeper, program.c_str(), nullptr, nullptr, arguments.data(), environ), 0);
  std::filesystem::remove(program);

  AgentProgram agent;
  const bool isReady = agent.waitUntilReady();
  const auto found = alerts();
  kill(sleeper, SIGKILL);
  waitpid(sleeper, nullptr, 0);
  ASSERT_TRUE(isReady) << agent.errors();
  EXPECT_TRUE(reports(found, "Set-user-ID file", tree.path("tool")));
  EXPECT_TRUE(reports(found, "Deleted executable", program));
  EXPECT_EQ(found.size(), 2U);
  EXPECT_GE(decode<AgentStatus>(bodyOf(get("/api/status")))->threat_count, 2);
}

TEST_F(Findings, ShowACleartextServiceAndItsProcess) {
  const int descriptor = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_port = htons(23);
  if (bind(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
    close(descriptor);
    GTEST_SKIP() << "no right to open port 23";
  }
  ASSERT_EQ(listen(descriptor, 1), 0);
  AgentProgram agent;
  ASSERT_TRUE(agent.waitUntilReady()) << agent.errors();
  const auto found = alerts();
  close(descriptor);
  EXPECT_TRUE(reports(found, "Cleartext service", std::filesystem::read_symlink("/proc/self/exe")));
  const auto network = decode<NetworkResponse>(bodyOf(get("/api/network")));
  ASSERT_TRUE(network);
  const NetworkConnection telnet = {
      "tcp", "0.0.0.0", "23", "0.0.0.0", "*", "LISTEN", std::to_string(getpid()), "high"};
  EXPECT_NE(std::find(network->connections.begin(), network->connections.end(), telnet),
            network->connections.end());
}

}  // namespace
}  // namespace quillmark::sample::test
