// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <tuple>
#include <vector>

#include "model/Field.h"
#include "model/ThreatAlert.h"

namespace quillmark {

/// The body of "/api/alerts".
struct AlertsResponse {
  std::vector<ThreatAlert> alerts;  ///< in the agent's order

  static constexpr auto fields = std::tuple{Field{"alerts", &AlertsResponse::alerts}};

  friend bool operator==(const AlertsResponse&, const AlertsResponse&) = default;
};

}  // namespace quillmark
