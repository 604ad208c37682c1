// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <ostream>
#include <vector>

#include "client/Completion.h"
#include "client/IPCClient.h"
#include "model/Codec.h"

namespace quillmark::test {

/// The results of the four operations of one client.
struct AllGets {
  std::optional<AgentStatus> status;
  std::optional<std::vector<ThreatAlert>> alerts;
  std::optional<std::vector<NetworkConnection>> network;
  std::optional<InventoryData> inventory;

  friend bool operator==(const AllGets&, const AllGets&) = default;
};

/// Makes failed comparisons readable.
inline void PrintTo(const AllGets& gets, std::ostream* out) {
  *out << "status: " << (gets.status ? encode(*gets.status) : "none")
       << "\nalerts: " << (gets.alerts ? encode(AlertsResponse{*gets.alerts}) : "none")
       << "\nnetwork: " << (gets.network ? encode(NetworkResponse{*gets.network}) : "none")
       << "\ninventory: " << (gets.inventory ? encode(*gets.inventory) : "none");
}

/// All four at once.
[[nodiscard]] inline AllGets getAll(const IPCClient& client) {
  auto status = started(client.getStatus());
  auto alerts = started(client.getAlerts());
  auto network = started(client.getNetwork());
  auto inventory = started(client.getInventory());
  return {status.get(), alerts.get(), network.get(), inventory.get()};
}

}  // namespace quillmark::test
