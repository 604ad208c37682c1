// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillmark::doctor {

/// What a TOML parser finds in a configuration.
struct ConfigToml {
  struct Position {
    std::uint32_t line = 0;
    std::uint32_t column = 0;
  };
  std::optional<Position> error;  ///< of the syntax error, if any; then the rest is empty
  bool hasAgent = false;          ///< whether there is a section [agent]
  std::optional<std::string> apiKey;
  std::optional<std::string> serverUrl;
};

[[nodiscard]] ConfigToml readToml(std::string_view text);

}  // namespace quillmark::doctor
