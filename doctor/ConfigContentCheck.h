// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include "ConfigToml.h"
#include "Finding.h"
#include "agentctl/ConfigReadBack.h"

namespace quillmark::doctor {

/// The step when the API key or the URL is missing.
inline constexpr auto enrolStep =
    "Enter the API key on the panel's Settings tab, press Save & Connect, and restart the agent.";

/// Reports whether the configuration is valid TOML with a section [agent]. `path` must
/// be sanitized.
[[nodiscard]] Finding judgeToml(const ConfigToml& toml, const std::string& path);

// The next two report whether the file has the value, and whether the Settings tab reads
// it exactly as it is there: the tab has no TOML parser.
[[nodiscard]] Finding judgeKey(const ConfigToml& toml, const ConfigEntries& entries);
[[nodiscard]] Finding judgeUrl(const ConfigToml& toml, const ConfigEntries& entries);

}  // namespace quillmark::doctor
