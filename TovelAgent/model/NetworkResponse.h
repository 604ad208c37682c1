// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <tuple>
#include <vector>

#include "model/Field.h"
#include "model/NetworkConnection.h"

namespace quillmark {

/// The body of "/api/network".
struct NetworkResponse {
  std::vector<NetworkConnection> connections;  ///< in the agent's order

  static constexpr auto fields = std::tuple{Field{"connections", &NetworkResponse::connections}};

  friend bool operator==(const NetworkResponse&, const NetworkResponse&) = default;
};

}  // namespace quillmark
