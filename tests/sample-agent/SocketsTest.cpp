// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/Sockets.h"

#include <string>

#include <gtest/gtest.h>

#include "sample-agent/FixtureTree.h"
#include "scan/Risk.h"

namespace quillmark::sample {
namespace {

using test::FixtureTree;

constexpr auto heading =
    "  sl  local_address rem_address   st tx_queue rx_queue tr tm->when retrnsmt   uid  timeout "
    "inode\n";

Socket tcpSocket(std::string address, std::uint16_t port, unsigned state = 0x0A) {
  return {"tcp", Transport::tcp, {std::move(address), port}, {"0.0.0.0", 0}, state, 0};
}

Socket udpSocket(std::string address, std::uint16_t port, unsigned state = 0x07) {
  return {"udp", Transport::udp, {std::move(address), port}, {"0.0.0.0", 0}, state, 0};
}

TEST(ReadSockets, ReadsTheKernelsTables) {
  const FixtureTree tree;
  tree.write("net/tcp", std::string(heading) +
                            "   0: 0100007F:1E8F 0500000A:01BB 01 00000000:00000000 00:00000000 "
                            "00000000  1000        0 4711 1 0000000000000000 20 4 30 10 -1\n");
  tree.write("net/tcp6", std::string(heading) +
                             "   0: B80D0120000000000000000001000000:0016 "
                             "00000000000000000000000000000000:0000 0A 00000000:00000000 "
                             "00:00000000 00000000     0        0 12 1 0000000000000000 100\n");
  tree.write("net/udp", std::string(heading) +
                            "  123: 00000000:14E9 00000000:0000 07 00000000:00000000 00:00000000 "
                            "00000000   105        0 99 2 0000000000000000 0\n");

  const auto sockets = readSockets(tree.root());
  ASSERT_EQ(sockets.size(), 3U);

  EXPECT_EQ(sockets[0].protocol, "tcp");
  EXPECT_EQ(sockets[0].local.address, "127.0.0.1");
  EXPECT_EQ(sockets[0].local.port, 7823);
  EXPECT_EQ(sockets[0].remote.address, "10.0.0.5");
  EXPECT_EQ(sockets[0].remote.port, 443);
  EXPECT_EQ(stateName(sockets[0]), "ESTABLISHED");
  EXPECT_EQ(sockets[0].inode, 4711U);

  EXPECT_EQ(sockets[1].protocol, "tcp6");
  EXPECT_EQ(sockets[1].local.address, "2001:db8::1");
  EXPECT_EQ(sockets[1].local.port, 22);
  EXPECT_EQ(sockets[1].remote.address, "::");
  EXPECT_EQ(stateName(sockets[1]), "LISTEN");

  EXPECT_EQ(sockets[2].protocol, "udp");
  EXPECT_EQ(sockets[2].local.address, "0.0.0.0");
  EXPECT_EQ(sockets[2].local.port, 5353);
  EXPECT_EQ(stateName(sockets[2]), "UNCONNECTED");
}

TEST(ReadSockets, LeavesOutLinesThatDoNotRead) {
  const FixtureTree tree;
  tree.write("net/tcp", std::string(heading) +
                            "   0: 0100007F:1E8F 0500000A:01BB 01 0:0 0:0 0 0\n"      // cut off
                            "   1: 0100007F:XYZ 0500000A:01BB 01 0:0 0:0 0 0 0 1\n"   // no port
                            "   2: 0100:0001 0500000A:01BB 01 0:0 0:0 0 0 0 1\n"      // no address
                            "   3: 0100007F:0001 0500000A:01BB zz 0:0 0:0 0 0 0 1\n"  // no state
                            "   4: 0100007F:0001 0500000A:01BB 01 0:0 0:0 0 0 0 7\n");
  const auto sockets = readSockets(tree.root());
  ASSERT_EQ(sockets.size(), 1U);
  EXPECT_EQ(sockets[0].inode, 7U);
}

TEST(ReadSockets, IsEmptyWithoutTables) {
  const FixtureTree tree;
  EXPECT_TRUE(readSockets(tree.root()).empty());
}

TEST(StateName, NamesEveryStateOfTheKernel) {
  const char* const names[] = {"ESTABLISHED", "SYN_SENT",  "SYN_RECV", "FIN_WAIT1",
                               "FIN_WAIT2",   "TIME_WAIT", "CLOSE",    "CLOSE_WAIT",
                               "LAST_ACK",    "LISTEN",    "CLOSING",  "NEW_SYN_RECV"};
  unsigned state = 1;
  for (const auto* name : names) {
    EXPECT_EQ(stateName(tcpSocket("127.0.0.1", 1, state++)), name);
  }
  EXPECT_EQ(stateName(tcpSocket("127.0.0.1", 1, 0)), "UNKNOWN (0)");
  EXPECT_EQ(stateName(tcpSocket("127.0.0.1", 1, 13)), "UNKNOWN (13)");
  EXPECT_EQ(stateName(udpSocket("127.0.0.1", 1, 1)), "ESTABLISHED");
}

TEST(ReachOf, TellsLoopbackFromTheRest) {
  const auto reach = [](const char* address) { return reachOf(tcpSocket(address, 80)); };
  EXPECT_EQ(reach("127.0.0.1"), Reach::thisMachine);
  EXPECT_EQ(reach("127.0.0.53"), Reach::thisMachine);
  EXPECT_EQ(reach("::1"), Reach::thisMachine);
  EXPECT_EQ(reach("::ffff:127.0.0.1"), Reach::thisMachine);
  EXPECT_EQ(reach("0.0.0.0"), Reach::allInterfaces);
  EXPECT_EQ(reach("::"), Reach::allInterfaces);
  EXPECT_EQ(reach("192.168.1.2"), Reach::oneAddress);
  EXPECT_EQ(reach("fe80::1"), Reach::oneAddress);
}

TEST(RiskLevel, IsHighForCleartextServicesOnAllInterfaces) {
  constexpr std::uint16_t ports[] = {21, 23, 512, 513, 514};
  for (const auto port : ports) {
    EXPECT_EQ(riskLevel(tcpSocket("0.0.0.0", port)), "high") << port;
    EXPECT_EQ(riskLevel(tcpSocket("::", port)), "high") << port;
    EXPECT_EQ(riskLevel(tcpSocket("192.168.1.2", port)), "medium") << port;
    EXPECT_EQ(riskLevel(tcpSocket("127.0.0.1", port)), "low") << port;
    EXPECT_EQ(riskLevel(tcpSocket("0.0.0.0", port, 0x01)), "low") << "not a listener: " << port;
  }
}

TEST(RiskLevel, IsMediumForOtherListenersOnAllInterfaces) {
  EXPECT_EQ(riskLevel(tcpSocket("0.0.0.0", 22)), "medium");
  EXPECT_EQ(riskLevel(tcpSocket("::", 80)), "medium");
  EXPECT_EQ(riskLevel(udpSocket("0.0.0.0", 5353)), "medium");
  EXPECT_EQ(riskLevel(udpSocket("0.0.0.0", 514)), "medium") << "the ports are those of TCP";
}

TEST(RiskLevel, IsLowForEverythingElse) {
  EXPECT_EQ(riskLevel(tcpSocket("127.0.0.1", 22)), "low");
  EXPECT_EQ(riskLevel(tcpSocket("192.168.1.2", 22)), "low");
  EXPECT_EQ(riskLevel(tcpSocket("192.168.1.2", 50000, 0x01)), "low");
  EXPECT_EQ(riskLevel(udpSocket("0.0.0.0", 68, 0x01)), "low");
}

}  // namespace
}  // namespace quillmark::sample
