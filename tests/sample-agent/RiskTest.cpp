// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "scan/Risk.h"

#include <gtest/gtest.h>

#include "procfs/SampleSockets.h"

namespace quillmark::sample {
namespace {

using test::tcpSocket;
using test::udpSocket;

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
