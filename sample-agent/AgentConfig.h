// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

#include <boost/system/result.hpp>

#include "Failure.h"

namespace quillmark::sample {

/// The keys of config.toml that the sample agent reads. It ignores all others,
/// which are for the product's agent.
struct AgentConfig {
  bool detection = true;        ///< [detection] enabled: whether the checks run
  bool protection = false;      ///< [protection] enabled: reported only, has no effect
  bool collectNetwork = true;   ///< [telemetry] collect_network
  bool collectServices = true;  ///< [telemetry] collect_services

  friend bool operator==(const AgentConfig&, const AgentConfig&) = default;
};

/// The possible paths of config.toml; the first that exists is used.
[[nodiscard]] std::vector<std::string> configPaths(const std::string& home);

/// Reads the first of `paths` that exists; returns the defaults if none does. A
/// failure, which names the place, if the file cannot be read, is not TOML, or has
/// a value other than a boolean for a key above.
[[nodiscard]] boost::system::result<AgentConfig, Failure> loadConfig(
    const std::vector<std::string>& paths);

}  // namespace quillmark::sample
