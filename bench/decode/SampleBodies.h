// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>

#include "model/InventoryData.h"
#include "model/NetworkResponse.h"

namespace quillmark::bench {

/// Connections of a busy machine: IPv4 and IPv6, most with a process.
[[nodiscard]] NetworkResponse sampleConnections(std::size_t count);

/// Applications as a desktop system's package manager lists them.
[[nodiscard]] InventoryData sampleInventory(std::size_t apps);

}  // namespace quillmark::bench
