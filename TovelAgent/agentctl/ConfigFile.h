// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>

#include <boost/system/error_code.hpp>

namespace quillmark {

/// The path where the agent's configuration is written: `config.toml` in the
/// user's configuration folder. Any thread, as long as no thread changes the
/// environment at the same time.
[[nodiscard]] std::string configFilePath();

/// Replaces the configuration with a complete new one, with a new agent id each
/// time. On an error the old configuration is unchanged. Waits for the disk. Any
/// thread, as long as no thread changes the environment at the same time.
[[nodiscard]] boost::system::error_code saveConfig(const std::string& serverUrl,
                                                   const std::string& apiKey);

/// The result of an import.
struct ImportResult {
  enum class Outcome { imported, missingAgentSection, failed };
  Outcome outcome = Outcome::failed;
  boost::system::error_code error;  ///< set when the outcome is `failed`
};

/// Replaces the configuration with an exact copy of the file at `source`, which must be
/// at most `maxConfigBytes` of UTF-8 text with "[agent]" anywhere in it. Otherwise the old
/// configuration is unchanged. Waits for the disk. Any thread, as long as no thread changes the
/// environment at the same time.
[[nodiscard]] ImportResult importConfigFile(const std::string& source);

/// The maximum size of a configuration that is read.
inline constexpr std::size_t maxConfigBytes = std::size_t{64} << 20;

}  // namespace quillmark
