// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include "ConfigToml.h"
#include "Finding.h"
#include "agentctl/ConfigReadBack.h"

namespace quillmark::doctor {

/// What to do without a key.
inline constexpr auto enrol =
    "Enter the API key on the panel's Settings tab, press Save & Connect, and restart the agent.";

/// Whether the configuration at `path`, harmless already, is one for the agent.
[[nodiscard]] Finding judgeToml(const ConfigToml& toml, const std::string& path);

// Whether the Settings tab reads back what is written.
[[nodiscard]] Finding judgeKey(const ConfigToml& toml, const ConfigEntries& entries);
[[nodiscard]] Finding judgeUrl(const ConfigToml& toml, const ConfigEntries& entries);

}  // namespace quillmark::doctor
