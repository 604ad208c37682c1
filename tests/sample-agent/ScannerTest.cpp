// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "Scanner.h"

#include <chrono>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "model/Codec.h"
#include "sample-agent/WithScannedMachine.h"

namespace quillmark::sample {
namespace {

using namespace test;

constexpr auto noonText = "2027-01-15T08:00:00Z";
const auto minuteLater = noon + std::chrono::minutes(1);
constexpr auto minuteLaterText = "2027-01-15T08:01:00Z";

using ScannerTest = WithScannedMachine;

TEST_F(ScannerTest, EncodesTheFourBodies) {
  const auto snapshot = scan().snapshot;

  const auto status = decode<AgentStatus>(snapshot->status);
  ASSERT_TRUE(status);
  EXPECT_EQ(status->status, "ok");
  EXPECT_FALSE(status->protection_enabled);
  EXPECT_EQ(status->threat_count, 2);
  EXPECT_EQ(status->last_alert, "A deleted program still runs: /opt/telnetd");
  EXPECT_EQ(status->last_scan, noonText);

  const auto alerts = decode<AlertsResponse>(snapshot->alerts);
  ASSERT_TRUE(alerts);
  ASSERT_EQ(alerts->alerts.size(), 2U);
  EXPECT_EQ(alerts->alerts[0].alert_type, "Deleted executable");
  EXPECT_EQ(alerts->alerts[0].timestamp, noonText);
  EXPECT_EQ(alerts->alerts[1].alert_type, "Cleartext service");

  const auto network = decode<NetworkResponse>(snapshot->network);
  ASSERT_TRUE(network);
  EXPECT_EQ(network->connections,
            (std::vector<NetworkConnection>{
                {"tcp", "0.0.0.0", "23", "0.0.0.0", "*", "LISTEN", "50", "high"}}));

  const auto inventory = decode<InventoryData>(snapshot->inventory);
  ASSERT_TRUE(inventory);
  EXPECT_EQ(inventory->apps,
            (std::vector<InstalledApp>{{"nano", "7", std::nullopt, "/usr/bin/nano"}}));
  EXPECT_EQ(inventory->services, std::vector<std::string>{"telnetd\uFFFD"});
  EXPECT_EQ(inventory->network_interfaces, (std::vector<std::string>{"lo", "eth0"}));
  EXPECT_EQ(inventory->permissions, std::vector<std::string>{"CAP_NET_BIND_SERVICE"});
}

TEST_F(ScannerTest, ReportsASetUidFileAndAnIncompleteSearch) {
  tree_.write("home/ann/tool", "");
  tree_.setMode("home/ann/tool", 04755);
  const auto alerts = decode<AlertsResponse>(scan().snapshot->alerts);
  ASSERT_TRUE(alerts);
  EXPECT_EQ(alerts->alerts.size(), 3U);
  EXPECT_TRUE(scan().notes.empty());

  WalkLimits limits;
  limits.depth = 0;
  Scanner scanner(paths_, {}, limits);
  const auto notes = scanner.scan(noon, {}).notes;
  EXPECT_EQ(notes,
            std::vector<std::string>{"the search for set-user-ID files in " + tree_.path("home") +
                                     " reached its limit; not all files were looked at"});
}

TEST_F(ScannerTest, ReportsAWritableProgramFolder) {
  paths_.searchPath = tree_.folder("bin");
  tree_.setMode("bin", 0777);
  const auto alerts = decode<AlertsResponse>(scan().snapshot->alerts);
  ASSERT_TRUE(alerts);
  EXPECT_EQ(alerts->alerts.size(), 3U);
}

TEST_F(ScannerTest, KeepsAnAlertsTimeFromScanToScan) {
  Scanner scanner(paths_, {});
  EXPECT_NE(scanner.scan(noon, {}).snapshot->alerts.find(noonText), std::string::npos);
  const auto second = scanner.scan(minuteLater, {}).snapshot;
  EXPECT_NE(second->alerts.find(noonText), std::string::npos);
  EXPECT_EQ(second->alerts.find(minuteLaterText), std::string::npos);
  EXPECT_EQ(decode<AgentStatus>(second->status)->last_scan, minuteLaterText);
}

TEST_F(ScannerTest, ReportsThatThereAreNoAlerts) {
  paths_.proc = tree_.folder("empty");
  const auto snapshot = scan().snapshot;
  EXPECT_EQ(snapshot->alerts, R"({"alerts":[]})");
  const auto status = decode<AgentStatus>(snapshot->status);
  ASSERT_TRUE(status);
  EXPECT_EQ(status->threat_count, 0);
  EXPECT_EQ(status->last_alert, "No alerts");
}

TEST_F(ScannerTest, CountsThreatsNotAlerts) {
  tree_.write("proc/50/root/opt/telnetd", "");
  const auto snapshot = scan().snapshot;
  EXPECT_EQ(decode<AlertsResponse>(snapshot->alerts)->alerts.size(), 2U);
  EXPECT_EQ(decode<AgentStatus>(snapshot->status)->threat_count, 1);
}

TEST_F(ScannerTest, ChecksNothingWithDetectionOff) {
  AgentConfig config;
  config.detection = false;
  const auto snapshot = scan(config).snapshot;
  EXPECT_EQ(snapshot->alerts, R"({"alerts":[]})");
  EXPECT_EQ(decode<AgentStatus>(snapshot->status)->last_alert, "Detection is switched off");
  EXPECT_EQ(decode<NetworkResponse>(snapshot->network)->connections.size(), 1U);
}

TEST_F(ScannerTest, ReadsNoSocketsWithNetworkCollectionOff) {
  AgentConfig config;
  config.collectNetwork = false;
  const auto snapshot = scan(config).snapshot;
  EXPECT_EQ(snapshot->network, R"({"connections":[]})");
  EXPECT_EQ(decode<AlertsResponse>(snapshot->alerts)->alerts.size(), 1U)
      << "the deleted program is found without sockets, the service is not";
}

TEST_F(ScannerTest, NamesNoServicesWithTheirCollectionOff) {
  AgentConfig config;
  config.collectServices = false;
  EXPECT_TRUE(decode<InventoryData>(scan(config).snapshot->inventory)->services.empty());
}

TEST_F(ScannerTest, ReportsTheProtectionSetting) {
  AgentConfig config;
  config.protection = true;
  EXPECT_TRUE(decode<AgentStatus>(scan(config).snapshot->status)->protection_enabled);
}

TEST(ScannerOnThisMachine, MakesFourBodies) {
  Scanner scanner(systemPaths(""), {});
  const auto snapshot = scanner.scan(noon, {}).snapshot;
  EXPECT_TRUE(decode<AgentStatus>(snapshot->status));
  EXPECT_TRUE(decode<AlertsResponse>(snapshot->alerts));
  EXPECT_TRUE(decode<NetworkResponse>(snapshot->network));
  const auto inventory = decode<InventoryData>(snapshot->inventory);
  ASSERT_TRUE(inventory);
  EXPECT_FALSE(inventory->network_interfaces.empty());
}

}  // namespace
}  // namespace quillmark::sample
