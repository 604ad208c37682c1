// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include "ConfigToml.h"
#include "Finding.h"
#include "agentctl/ConfigReadBack.h"

namespace quillmark::doctor {

/// The step when the API key or the URL is missing.
inline constexpr auto enrol =
    "Enter the API key on the panel's Settings tab, press Save & Connect, and restart the agent.";

/// Whether the configuration is valid TOML with a section [agent]. `path` is already
/// sanitized.
[[nodiscard]] Finding judgeToml(const ConfigToml& toml, const std::string& path);

// Whether the Settings tab reads the value exactly as the file has it.
[[nodiscard]] Finding judgeKey(const ConfigToml& toml, const ConfigEntries& entries);
[[nodiscard]] Finding judgeUrl(const ConfigToml& toml, const ConfigEntries& entries);

}  // namespace quillmark::doctor
