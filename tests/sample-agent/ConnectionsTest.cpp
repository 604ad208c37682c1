// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scan/Connections.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace quillmark::sample {
namespace {

constexpr unsigned established = 0x01;
constexpr unsigned timeWait = 0x06;
constexpr unsigned listening = 0x0A;

Socket socket(SocketEnd local, SocketEnd remote, unsigned state, std::uint64_t inode = 0) {
  return {"tcp", Transport::tcp, std::move(local), std::move(remote), state, inode};
}

TEST(ConnectionsOf, WritesEveryField) {
  Process process;
  process.pid = 812;
  process.sockets = {55};
  const auto connections = connectionsOf(
      {socket({"192.168.1.2", 40000}, {"10.0.0.5", 443}, established, 55)}, {process});
  const std::vector<NetworkConnection> expected = {
      {"tcp", "192.168.1.2", "40000", "10.0.0.5", "443", "ESTABLISHED", "812", "low"}};
  EXPECT_EQ(connections, expected);
}

TEST(ConnectionsOf, WritesAPortThatMeansAnyAsAStar) {
  const auto connections =
      connectionsOf({socket({"0.0.0.0", 22}, {"0.0.0.0", 0}, listening, 1)}, {});
  ASSERT_EQ(connections.size(), 1U);
  EXPECT_EQ(connections[0].remote_port, "*");
  EXPECT_EQ(connections[0].risk_level, "medium");
  EXPECT_EQ(connections[0].pid, std::nullopt) << "no visible process has it";
}

TEST(ConnectionsOf, GivesNoProcessForASocketWithoutOne) {
  Process process;
  process.sockets = {0};
  const auto connections =
      connectionsOf({socket({"10.0.0.1", 5}, {"10.0.0.2", 6}, timeWait, 0)}, {process});
  ASSERT_EQ(connections.size(), 1U);
  EXPECT_EQ(connections[0].pid, std::nullopt);
}

TEST(ConnectionsOf, NamesTheFirstOfSeveralProcesses) {
  Process first;
  first.pid = 10;
  first.sockets = {7};
  Process second = first;
  second.pid = 11;
  const auto connections =
      connectionsOf({socket({"::", 80}, {"::", 0}, listening, 7)}, {first, second});
  ASSERT_EQ(connections.size(), 1U);
  EXPECT_EQ(connections[0].pid, "10");
}

TEST(ConnectionsOf, LeavesOutTheExchangesWithTheAgentItself) {
  const SocketEnd agent{"127.0.0.1", 7823};
  const SocketEnd client{"127.0.0.1", 40000};
  const auto connections = connectionsOf(
      {
          socket(agent, {"0.0.0.0", 0}, listening),
          socket(agent, client, timeWait),
          socket(client, agent, established),
          socket({"127.0.0.1", 40001}, {"10.0.0.5", 7823}, established),
      },
      {});
  ASSERT_EQ(connections.size(), 2U);
  EXPECT_EQ(connections[0].state, "LISTEN");
  EXPECT_EQ(connections[1].remote_address, "10.0.0.5") << "the same port of another machine";
}

TEST(ConnectionsOf, ListsServicesFirstAndThenByPort) {
  const auto connections = connectionsOf(
      {
          socket({"10.0.0.1", 50}, {"10.0.0.2", 443}, established),
          socket({"10.0.0.1", 9}, {"10.0.0.2", 443}, established),
          socket({"0.0.0.0", 8080}, {"0.0.0.0", 0}, listening),
          socket({"0.0.0.0", 22}, {"0.0.0.0", 0}, listening),
      },
      {});
  std::vector<std::string> ports;
  ports.reserve(connections.size());
  for (const auto& connection : connections) {
    ports.push_back(connection.local_port);
  }
  EXPECT_EQ(ports, (std::vector<std::string>{"22", "8080", "9", "50"}));
}

}  // namespace
}  // namespace quillmark::sample
