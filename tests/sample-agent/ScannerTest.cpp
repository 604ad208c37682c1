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
  const auto bodies = scan().bodies;

  const auto status = decode<AgentStatus>(bodies->status);
  ASSERT_TRUE(status);
  EXPECT_EQ(status->status, "ok");
  EXPECT_FALSE(status->protection_enabled);
  EXPECT_EQ(status->threat_count, 2);
  EXPECT_EQ(status->last_alert, "A deleted program still runs: /opt/telnetd");
  EXPECT_EQ(status->last_scan, noonText);

  const auto alerts = decode<AlertsResponse>(bodies->alerts);
  ASSERT_TRUE(alerts);
  ASSERT_EQ(alerts->alerts.size(), 2U);
  EXPECT_EQ(alerts->alerts[0].alert_type, "Deleted executable");
  EXPECT_EQ(alerts->alerts[0].timestamp, noonText);
  EXPECT_EQ(alerts->alerts[1].alert_type, "Cleartext service");

  const auto network = decode<NetworkResponse>(bodies->network);
  ASSERT_TRUE(network);
  EXPECT_EQ(network->connections,
            (std::vector<NetworkConnection>{
                {"tcp", "0.0.0.0", "23", "0.0.0.0", "*", "LISTEN", "50", "high"}}));

  const auto inventory = decode<InventoryData>(bodies->inventory);
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
  const auto alerts = decode<AlertsResponse>(scan().bodies->alerts);
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
  const auto alerts = decode<AlertsResponse>(scan().bodies->alerts);
  ASSERT_TRUE(alerts);
  EXPECT_EQ(alerts->alerts.size(), 3U);
}

TEST_F(ScannerTest, KeepsAnAlertsTimeFromScanToScan) {
  Scanner scanner(paths_, {});
  EXPECT_NE(scanner.scan(noon, {}).bodies->alerts.find(noonText), std::string::npos);
  const auto second = scanner.scan(minuteLater, {}).bodies;
  EXPECT_NE(second->alerts.find(noonText), std::string::npos);
  EXPECT_EQ(second->alerts.find(minuteLaterText), std::string::npos);
  EXPECT_EQ(decode<AgentStatus>(second->status)->last_scan, minuteLaterText);
}

TEST_F(ScannerTest, ReportsThatThereAreNoAlerts) {
  paths_.proc = tree_.folder("empty");
  const auto bodies = scan().bodies;
  EXPECT_EQ(bodies->alerts, R"({"alerts":[]})");
  const auto status = decode<AgentStatus>(bodies->status);
  ASSERT_TRUE(status);
  EXPECT_EQ(status->threat_count, 0);
  EXPECT_EQ(status->last_alert, "No alerts");
}

TEST_F(ScannerTest, CountsThreatsNotAlerts) {
  tree_.write("proc/50/root/opt/telnetd", "");
  const auto bodies = scan().bodies;
  EXPECT_EQ(decode<AlertsResponse>(bodies->alerts)->alerts.size(), 2U);
  EXPECT_EQ(decode<AgentStatus>(bodies->status)->threat_count, 1);
}

TEST_F(ScannerTest, ChecksNothingWithDetectionOff) {
  AgentConfig config;
  config.detection = false;
  const auto bodies = scan(config).bodies;
  EXPECT_EQ(bodies->alerts, R"({"alerts":[]})");
  EXPECT_EQ(decode<AgentStatus>(bodies->status)->last_alert, "Detection is switched off");
  EXPECT_EQ(decode<NetworkResponse>(bodies->network)->connections.size(), 1U);
}

TEST_F(ScannerTest, ReadsNoSocketsWithNetworkCollectionOff) {
  AgentConfig config;
  config.collectNetwork = false;
  const auto bodies = scan(config).bodies;
  EXPECT_EQ(bodies->network, R"({"connections":[]})");
  EXPECT_EQ(decode<AlertsResponse>(bodies->alerts)->alerts.size(), 1U)
      << "the deleted program is found without sockets, the service is not";
}

TEST_F(ScannerTest, NamesNoServicesWithTheirCollectionOff) {
  AgentConfig config;
  config.collectServices = false;
  EXPECT_TRUE(decode<InventoryData>(scan(config).bodies->inventory)->services.empty());
}

TEST_F(ScannerTest, ReportsTheProtectionSetting) {
  AgentConfig config;
  config.protection = true;
  EXPECT_TRUE(decode<AgentStatus>(scan(config).bodies->status)->protection_enabled);
}

TEST(ScannerOnThisMachine, MakesFourBodies) {
  Scanner scanner(systemPaths(""), {});
  const auto bodies = scanner.scan(noon, {}).bodies;
  EXPECT_TRUE(decode<AgentStatus>(bodies->status));
  EXPECT_TRUE(decode<AlertsResponse>(bodies->alerts));
  EXPECT_TRUE(decode<NetworkResponse>(bodies->network));
  const auto inventory = decode<InventoryData>(bodies->inventory);
  ASSERT_TRUE(inventory);
  EXPECT_FALSE(inventory->network_interfaces.empty());
}

}  // namespace
}  // namespace quillmark::sample
