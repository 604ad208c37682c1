// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <string>

#include <boost/system/error_code.hpp>

namespace quillmark {

/// Where the agent's configuration is written: `config.toml` in the user's
/// configuration folder.
[[nodiscard]] std::string configFilePath();

/// Writes a complete configuration that enrols this machine, under a new agent
/// identity each time, in place of the one before. On an error that one is as
/// it was. Any thread; waits for the disk.
[[nodiscard]] boost::system::error_code saveConfig(const std::string& serverUrl,
                                                   const std::string& apiKey);

/// What became of an import.
struct ImportResult {
  enum class Outcome { imported, missingAgentSection, failed };
  Outcome outcome = Outcome::failed;
  boost::system::error_code error;  ///< set when it failed
};

/// Copies the configuration at `source`, at most 64 MiB of UTF-8 text that has
/// "[agent]" anywhere in it, unchanged in place of the one before. Otherwise
/// that one is as it was. Any thread; waits for the disk.
[[nodiscard]] ImportResult importConfigFile(const std::string& source);

/// The largest configuration that is read.
inline constexpr std::size_t maxConfigBytes = std::size_t{64} << 20;

}  // namespace quillmark
