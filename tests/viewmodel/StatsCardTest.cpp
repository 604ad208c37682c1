// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <vector>

#include <gtest/gtest.h>

#include "viewmodel/PrintQString.h"
#include "viewmodel/StatsCard.h"

namespace quillmark {
namespace {

std::vector<NetworkConnection> connections(std::size_t count) {
  return std::vector<NetworkConnection>(count);
}

std::vector<ThreatAlert> alerts(std::size_t count) { return std::vector<ThreatAlert>(count); }

TEST(StatsCards, CountOnlyConnectionsAndAlertsWithoutAnInventory) {
  const std::vector<StatsCard> expected{
      {QStringLiteral("Active Network Connections"), QStringLiteral("0")},
      {QStringLiteral("Recent Alerts"), QStringLiteral("0")}};
  EXPECT_EQ(statsCards(nullptr, {}, {}), expected);
}

TEST(StatsCards, CountAnEmptyInventoryToo) {
  const InventoryData inventory;
  const std::vector<StatsCard> expected{
      {QStringLiteral("Installed Applications"), QStringLiteral("0")},
      {QStringLiteral("Active Services"), QStringLiteral("0")},
      {QStringLiteral("Network Interfaces"), QStringLiteral("0")},
      {QStringLiteral("Active Network Connections"), QStringLiteral("0")},
      {QStringLiteral("Recent Alerts"), QStringLiteral("0")}};
  EXPECT_EQ(statsCards(&inventory, {}, {}), expected);
}

TEST(StatsCards, CountEachListAndNoPermissions) {
  InventoryData inventory;
  inventory.apps.resize(1);
  inventory.services = {"cron", "ssh"};
  inventory.network_interfaces = {"lo", "eth0", "wlan0"};
  inventory.permissions.resize(99);
  const std::vector<StatsCard> expected{
      {QStringLiteral("Installed Applications"), QStringLiteral("1")},
      {QStringLiteral("Active Services"), QStringLiteral("2")},
      {QStringLiteral("Network Interfaces"), QStringLiteral("3")},
      {QStringLiteral("Active Network Connections"), QStringLiteral("4")},
      {QStringLiteral("Recent Alerts"), QStringLiteral("5")}};
  EXPECT_EQ(statsCards(&inventory, connections(4), alerts(5)), expected);
}

TEST(StatsCards, GroupNoDigits) {
  InventoryData inventory;
  inventory.apps.resize(1234);
  const auto cards = statsCards(&inventory, connections(123456), {});
  EXPECT_EQ(cards[0].value, QStringLiteral("1234"));
  EXPECT_EQ(cards[3].value, QStringLiteral("123456"));
}

TEST(StatsCards, CountAlertsBeyondThoseListed) {
  EXPECT_EQ(statsCards(nullptr, {}, alerts(150)).back().value, QStringLiteral("150"));
}

}  // namespace
}  // namespace quillmark
