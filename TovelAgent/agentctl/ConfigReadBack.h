// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// The two values of a configuration that users enter.
struct ConfigEntries {
  std::optional<std::string> apiKey;     ///< also absent when empty or a placeholder
  std::optional<std::string> serverUrl;  ///< also absent when empty or above 8,000 bytes

  friend bool operator==(const ConfigEntries&, const ConfigEntries&) = default;
};

/// Finds the two values in the lines of `text`, in any section. If one of them occurs several
/// times, the last value that would not be absent is taken. Not a TOML parser:
/// every line that begins with "api_key" or "server_url" counts, `api_keys = …` too; a second
/// "=" in the line ends the value; a carriage return is part of the value. Any thread.
[[nodiscard]] ConfigEntries readEntries(std::string_view text);

/// Whether `key` is a placeholder for a real key; placeholders are not read back.
[[nodiscard]] bool isPlaceholderKey(std::string_view key);

/// The files that the panel reads the configuration back from, in search order.
/// Any thread, as long as no thread changes the environment at the same time.
[[nodiscard]] std::vector<std::string> configSearchPaths();

/// The entries of the first file of `configSearchPaths()` that can be read; no entries if
/// none can. Reads files. Any thread, as long as no thread changes the environment at the
/// same time.
[[nodiscard]] ConfigEntries readCurrentConfig();

}  // namespace quillmark
