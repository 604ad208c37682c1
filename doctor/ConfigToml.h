// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillmark::doctor {

/// What a reader of TOML finds in a configuration.
struct ConfigToml {
  struct Place {
    std::uint32_t line = 0;
    std::uint32_t column = 0;
  };
  std::optional<Place> error;  ///< where it stops being TOML; then the rest is empty
  bool hasAgent = false;       ///< whether there is a section [agent]
  std::optional<std::string> apiKey;
  std::optional<std::string> serverUrl;
};

[[nodiscard]] ConfigToml readToml(std::string_view text);

}  // namespace quillmark::doctor
