// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace quillmark {

/// Parses all of `text` as one number; no value for anything else, including a
/// number that is out of range.
template <class Number>
[[nodiscard]] std::optional<Number> parseNumber(std::string_view text, int base = 10) {
  Number value{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
  if (error != std::errc{} || end != text.data() + text.size()) {
    return std::nullopt;
  }
  return value;
}

}  // namespace quillmark
