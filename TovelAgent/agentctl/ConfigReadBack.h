// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// What a configuration says of the two values the user types.
struct ConfigEntries {
  std::optional<std::string> apiKey;     ///< absent also for a placeholder
  std::optional<std::string> serverUrl;  ///< absent also when empty

  friend bool operator==(const ConfigEntries&, const ConfigEntries&) = default;
};

/// Looks through the lines of `text` for these two, whatever section they are
/// in; the last one of each counts. A line counts by how it starts, and a value
/// ends at its first "=". Any thread.
[[nodiscard]] ConfigEntries readEntries(std::string_view text);

/// Whether a key only stands where one is to be put; it is not read back.
[[nodiscard]] bool isPlaceholderKey(std::string_view key);

/// Where the agent's configuration may lie, in the order in which it is looked
/// for. Any thread, as long as none changes the environment meanwhile.
[[nodiscard]] std::vector<std::string> configFilePaths();

/// The entries of the first of the agent's configuration files that can be
/// read. Any thread; it reads files.
[[nodiscard]] ConfigEntries readCurrentConfig();

}  // namespace quillmark
