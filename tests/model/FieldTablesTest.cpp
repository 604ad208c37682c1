// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <string>
#include <type_traits>
#include <vector>

#include <gtest/gtest.h>

#include "model/Codec.h"
#include "model/RecordJson.h"

namespace quillmark::test {
namespace {

using Keys = std::vector<std::string>;

template <Record R>
Keys optionalKeysOf() {
  Keys keys = keysOf<R>();
  std::erase_if(keys, [](const auto& key) { return !isOptional<R>(key); });
  return keys;
}

// All other tests use the tables; this one repeats them, because the agent depends on
// exactly these keys.

TEST(FieldTables, OfStatus) {
  EXPECT_EQ(keysOf<AgentStatus>(),
            (Keys{"protection_enabled", "threat_count", "last_alert", "status", "last_scan"}));
  EXPECT_EQ(optionalKeysOf<AgentStatus>(), Keys{});
}

TEST(FieldTables, OfAlerts) {
  EXPECT_EQ(keysOf<AlertsResponse>(), Keys{"alerts"});
  EXPECT_EQ(optionalKeysOf<AlertsResponse>(), Keys{});
  EXPECT_EQ(keysOf<ThreatAlert>(),
            (Keys{"alert_type", "severity", "title", "description", "file_path", "timestamp"}));
  EXPECT_EQ(optionalKeysOf<ThreatAlert>(),
            (Keys{"title", "description", "file_path", "timestamp"}));
}

TEST(FieldTables, OfNetwork) {
  EXPECT_EQ(keysOf<NetworkResponse>(), Keys{"connections"});
  EXPECT_EQ(optionalKeysOf<NetworkResponse>(), Keys{});
  EXPECT_EQ(keysOf<NetworkConnection>(),
            (Keys{"protocol", "local_address", "local_port", "remote_address", "remote_port",
                  "state", "pid", "risk_level"}));
  EXPECT_EQ(optionalKeysOf<NetworkConnection>(), (Keys{"pid", "risk_level"}));
}

TEST(FieldTables, OfInventory) {
  EXPECT_EQ(keysOf<InventoryData>(),
            (Keys{"apps", "services", "network_interfaces", "permissions"}));
  EXPECT_EQ(optionalKeysOf<InventoryData>(), Keys{});
  EXPECT_EQ(keysOf<InstalledApp>(), (Keys{"name", "version", "publisher", "path"}));
  EXPECT_EQ(optionalKeysOf<InstalledApp>(), (Keys{"version", "publisher", "path"}));
}

// Takes the fields in table order, each into the member of its own name.

TEST(MemberwiseConstruction, OfStatus) {
  const AgentStatus status{true, 3, "alert", "ok", "scan"};
  EXPECT_EQ(status.protection_enabled, true);
  EXPECT_EQ(status.threat_count, 3);
  EXPECT_EQ(status.last_alert, "alert");
  EXPECT_EQ(status.status, "ok");
  EXPECT_EQ(status.last_scan, "scan");
}

TEST(MemberwiseConstruction, OfAlerts) {
  const AlertsResponse response{{{"type", "high", "title", std::nullopt, "path", "time"}}};
  const ThreatAlert& alert = response.alerts.at(0);
  EXPECT_EQ(alert.alert_type, "type");
  EXPECT_EQ(alert.severity, "high");
  EXPECT_EQ(alert.title, "title");
  EXPECT_EQ(alert.description, std::nullopt);
  EXPECT_EQ(alert.file_path, "path");
  EXPECT_EQ(alert.timestamp, "time");
}

TEST(MemberwiseConstruction, OfNetwork) {
  const NetworkResponse response{{{"tcp", "here", "1", "there", "2", "OPEN", "77", "low"}}};
  const NetworkConnection& connection = response.connections.at(0);
  EXPECT_EQ(connection.connectionProtocol, "tcp");
  EXPECT_EQ(connection.local_address, "here");
  EXPECT_EQ(connection.local_port, "1");
  EXPECT_EQ(connection.remote_address, "there");
  EXPECT_EQ(connection.remote_port, "2");
  EXPECT_EQ(connection.state, "OPEN");
  EXPECT_EQ(connection.pid, "77");
  EXPECT_EQ(connection.risk_level, "low");
}

TEST(MemberwiseConstruction, OfInventory) {
  const InventoryData inventory{{{"editor", "1.2", "maker", "/bin/ed"}}, {"cron"}, {"lo"}, {"all"}};
  const InstalledApp& app = inventory.apps.at(0);
  EXPECT_EQ(app.name, "editor");
  EXPECT_EQ(app.version, "1.2");
  EXPECT_EQ(app.publisher, "maker");
  EXPECT_EQ(app.path, "/bin/ed");
  EXPECT_EQ(inventory.services, std::vector<std::string>{"cron"});
  EXPECT_EQ(inventory.network_interfaces, std::vector<std::string>{"lo"});
  EXPECT_EQ(inventory.permissions, std::vector<std::string>{"all"});
}

}  // namespace
}  // namespace quillmark::test
