// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quillmark {

// The readers below return no value, or an empty list, for what cannot be read: a
// process may end at any time, and an ordinary user may not read everything.

/// The bytes of a regular file, such as one under /proc.
[[nodiscard]] std::optional<std::string> readSystemFile(const std::string& path);

/// The text of a symbolic link.
[[nodiscard]] std::optional<std::string> readLink(const std::string& path);

/// The names in a folder, without "." and "..", in no particular order.
[[nodiscard]] std::vector<std::string> namesIn(const std::string& folder);

}  // namespace quillmark
