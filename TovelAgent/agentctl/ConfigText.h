// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace quillmark {

/// The values in the agent's configuration file that differ between machines.
struct ConfigValues {
  std::string agentId;
  std::string machineIdentifier;
  std::string serverUrl;
  std::string apiKey;
  std::string home;  ///< without a trailing slash
};

/// The whole `config.toml`, without a final line feed. Values are inserted
/// unchanged: nothing is trimmed, escaped or checked. Any thread.
[[nodiscard]] std::string configText(const ConfigValues& values);

}  // namespace quillmark
