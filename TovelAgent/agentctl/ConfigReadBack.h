// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// A configuration's two values that users type.
struct ConfigEntries {
  std::optional<std::string> apiKey;     ///< also absent when empty or a placeholder
  std::optional<std::string> serverUrl;  ///< also absent when empty

  friend bool operator==(const ConfigEntries&, const ConfigEntries&) = default;
};

/// Finds the two values in the lines of `text`, in any section; the last usable
/// one of each is taken. A line has a value if it begins with the value's name; the
/// value ends at its first "=". Any thread.
[[nodiscard]] ConfigEntries readEntries(std::string_view text);

/// Whether `key` is a placeholder for a real key; placeholders are not read back.
[[nodiscard]] bool isPlaceholderKey(std::string_view key);

/// The files that the panel reads the configuration back from, in search order.
/// Threads: as `homeDirectory`.
[[nodiscard]] std::vector<std::string> configSearchPaths();

/// The entries of the first of these files that can be read. Threads: as
/// `homeDirectory`; it reads files.
[[nodiscard]] ConfigEntries readCurrentConfig();

}  // namespace quillmark
