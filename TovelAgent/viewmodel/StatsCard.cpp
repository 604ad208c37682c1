// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/StatsCard.h"

namespace quillmark {

std::vector<StatsCard> statsCards(const InventoryData* inventory,
                                  const std::vector<NetworkConnection>& connections,
                                  const std::vector<ThreatAlert>& alerts) {
  std::vector<StatsCard> cards;
  const auto add = [&](const QString& title, const auto& entries) {
    cards.push_back({title, QString::number(entries.size())});
  };
  if (inventory != nullptr) {
    add(QStringLiteral("Installed Applications"), inventory->apps);
    add(QStringLiteral("Active Services"), inventory->services);
    add(QStringLiteral("Network Interfaces"), inventory->network_interfaces);
  }
  add(QStringLiteral("Active Network Connections"), connections);
  add(QStringLiteral("Recent Alerts"), alerts);
  return cards;
}

}  // namespace quillmark
