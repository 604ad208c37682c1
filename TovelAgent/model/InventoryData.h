// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <tuple>
#include <vector>

#include "model/Field.h"
#include "model/InstalledApp.h"

namespace quillmark {

/// The machine's software and interfaces; the body of "/api/inventory".
struct InventoryData {
  std::vector<InstalledApp> apps;
  std::vector<std::string> services;            ///< names of running services
  std::vector<std::string> network_interfaces;  ///< their names
  std::vector<std::string> permissions;         ///< what the agent may do

  static constexpr auto fields =
      std::tuple{Field{"apps", &InventoryData::apps}, Field{"services", &InventoryData::services},
                 Field{"network_interfaces", &InventoryData::network_interfaces},
                 Field{"permissions", &InventoryData::permissions}};

  friend bool operator==(const InventoryData&, const InventoryData&) = default;
};

}  // namespace quillmark
