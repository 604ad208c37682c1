// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <vector>

#include <QQmlEngine>
#include <QString>

#include "model/InventoryData.h"
#include "model/NetworkConnection.h"
#include "model/ThreatAlert.h"

namespace quillmark {

/// One titled number on the dashboard.
struct StatsCard {
  Q_GADGET
  QML_VALUE_TYPE(statsCard)
  Q_PROPERTY(QString title MEMBER title CONSTANT)
  Q_PROPERTY(QString value MEMBER value CONSTANT)

 public:
  QString title;
  QString value;  ///< a plain decimal integer

  friend bool operator==(const StatsCard&, const StatsCard&) = default;
};

/// A card is shown unchanged.
[[nodiscard]] inline const StatsCard& present(const StatsCard& card) { return card; }

/// The dashboard's cards, top to bottom. The cards that count the inventory are
/// left out when `inventory` is null.
[[nodiscard]] std::vector<StatsCard> statsCards(const InventoryData* inventory,
                                                const std::vector<NetworkConnection>& connections,
                                                const std::vector<ThreatAlert>& alerts);

}  // namespace quillmark
