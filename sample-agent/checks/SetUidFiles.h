// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <cstddef>
#include <stop_token>
#include <string>
#include <vector>

#include "model/ThreatAlert.h"

namespace quillmark::sample {

/// Limits for the search of one folder. A search that ends early still reports what
/// it found before.
struct WalkLimits {
  std::size_t depth = 8;        ///< levels of folders below the first
  std::size_t entries = 50000;  ///< file names examined
  std::chrono::steady_clock::duration time = std::chrono::seconds(2);
};

struct SetUidSearch {
  std::vector<ThreatAlert> alerts;
  bool complete = true;  ///< false when a limit or `stop` ended it
};

/// Searches the folder `root` for executable files that run with their owner's
/// rights: "critical" if the owner is root, else "high". Follows no symbolic link
/// below `root` and stays in the file system of `root`.
[[nodiscard]] SetUidSearch setUidFiles(const std::string& root, const WalkLimits& limits,
                                       const std::stop_token& stop);

}  // namespace quillmark::sample
