// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/Sockets.h"

#include <string>

#include <gtest/gtest.h>

#include "procfs/SampleSockets.h"
#include "sample-agent/FixtureTree.h"

namespace quillmark::sample {
namespace {

using test::FixtureTree;
using test::tcpSocket;
using test::udpSocket;

constexpr auto heading =
    "  sl  local_address rem_address   st tx_queue rx_queue tr tm->when retrnsmt   uid  timeout "
    "inode\n";

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

TEST(ReadSockets, SkipsMalformedLines) {
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

TEST(ReachOf, DistinguishesLoopbackFromTheRest) {
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

}  // namespace
}  // namespace quillmark::sample
