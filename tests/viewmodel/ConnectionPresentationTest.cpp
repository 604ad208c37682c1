// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>

#include <gtest/gtest.h>

#include "viewmodel/ConnectionPresentation.h"
#include "viewmodel/PrintQString.h"

namespace quillmark {
namespace {

NetworkConnection connectionOf(const std::string& localAddress, const std::string& localPort,
                               const std::string& remoteAddress, const std::string& remotePort) {
  return {"tcp", localAddress, localPort, remoteAddress, remotePort, "ESTABLISHED", {}, {}};
}

TEST(ConnectionPresentation, JoinsAddressesAndPorts) {
  const auto row = present(connectionOf("127.0.0.1", "7823", "10.0.0.5", "443"));
  EXPECT_EQ(row.localEndpoint, QStringLiteral("127.0.0.1:7823"));
  EXPECT_EQ(row.remoteEndpoint, QStringLiteral("→ 10.0.0.5:443"));
  EXPECT_EQ(row.state, QStringLiteral("ESTABLISHED"));
  EXPECT_EQ(row.accessibleName, QStringLiteral("127.0.0.1:7823, → 10.0.0.5:443, ESTABLISHED"));
}

TEST(ConnectionPresentation, ShowsNothingForEmptyFields) {
  const auto row = present(connectionOf("", "", "", ""));
  EXPECT_EQ(row.localEndpoint, QStringLiteral(":"));
  EXPECT_EQ(row.remoteEndpoint, QStringLiteral("→ :"));
}

TEST(ConnectionPresentation, AddsNoBracketsToAnIpv6Address) {
  const auto row = present(connectionOf("fe80::1", "22", "::", "*"));
  EXPECT_EQ(row.localEndpoint, QStringLiteral("fe80::1:22"));
  EXPECT_EQ(row.remoteEndpoint, QStringLiteral("→ :::*"));
}

TEST(ConnectionPresentation, KeepsTextsAsReceived) {
  auto connection = connectionOf(" 127.0.0.1 ", "0080", "<b>a</b>", "http");
  connection.state = "listen \n";
  const auto row = present(connection);
  EXPECT_EQ(row.localEndpoint, QStringLiteral(" 127.0.0.1 :0080"));
  EXPECT_EQ(row.remoteEndpoint, QStringLiteral("→ <b>a</b>:http"));
  EXPECT_EQ(row.state, QStringLiteral("listen \n"));
}

TEST(ConnectionPresentation, ShowsNeitherProtocolNorProcessNorRisk) {
  const auto plain = connectionOf("127.0.0.1", "1", "10.0.0.5", "2");
  auto risky = plain;
  risky.connectionProtocol = "udp";
  risky.pid = "4711";
  risky.risk_level = "high";
  const auto a = present(plain);
  const auto b = present(risky);
  EXPECT_EQ(a.localEndpoint, b.localEndpoint);
  EXPECT_EQ(a.remoteEndpoint, b.remoteEndpoint);
  EXPECT_EQ(a.state, b.state);
  EXPECT_EQ(a.accessibleName, b.accessibleName);
}

}  // namespace
}  // namespace quillmark
