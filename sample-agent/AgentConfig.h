// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <vector>

#include <boost/system/result.hpp>

#include "Failure.h"

namespace quillmark::sample {

/// What the sample agent heeds of config.toml; every other key is for the
/// product's agent and is passed over.
struct AgentConfig {
  bool detection = true;        ///< [detection] enabled: whether the checks run
  bool protection = false;      ///< [protection] enabled: reported only, nothing is acted on
  bool collectNetwork = true;   ///< [telemetry] collect_network
  bool collectServices = true;  ///< [telemetry] collect_services

  friend bool operator==(const AgentConfig&, const AgentConfig&) = default;
};

/// Where config.toml may lie, the first one that exists is taken.
[[nodiscard]] std::vector<std::string> configPaths(const std::string& home);

/// Reads the first of `paths` that exists, the defaults when none does. A file
/// that exists but cannot be read, is no TOML, or holds another type than a
/// boolean under a key above, is a failure that names the place.
[[nodiscard]] boost::system::result<AgentConfig, Failure> loadConfig(
    const std::vector<std::string>& paths);

}  // namespace quillmark::sample
