// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include "model/InventoryData.h"
#include "model/NetworkResponse.h"

namespace quillmark::bench {

/// Other decoders, each written as its library's manual shows it. They need a valid
/// body. Any thread.

[[nodiscard]] NetworkResponse connectionsBySimdjson(const std::string& body);
[[nodiscard]] InventoryData inventoryBySimdjson(const std::string& body);

[[nodiscard]] NetworkResponse connectionsByQt(const std::string& body);
[[nodiscard]] InventoryData inventoryByQt(const std::string& body);

/// Parses into Boost's document only, without records. Returns its number of top-level keys.
[[nodiscard]] std::size_t documentByBoost(const std::string& body);

}  // namespace quillmark::bench
