// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace quillmark::sample {

/// An application's entry in a desktop's menu.
struct DesktopEntry {
  std::string name;
  std::string command;  ///< the program of its Exec line, with or without a path
};

/// Reads the text of a .desktop file. No value for an entry that no menu shows: of a
/// type other than Application, marked hidden, or without a name.
[[nodiscard]] std::optional<DesktopEntry> parseDesktopEntry(std::string_view text);

}  // namespace quillmark::sample
