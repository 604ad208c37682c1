// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// `bytes` as UTF-8: each byte that belongs to no character becomes U+FFFD.
/// File and program names are bytes to the system, but text in JSON.
[[nodiscard]] std::string asUtf8(std::string_view bytes);

/// `time` in UTC by RFC 3339, whole seconds: "2026-01-31T08:05:00Z".
[[nodiscard]] std::string rfc3339(std::chrono::system_clock::time_point time);

/// The parts of `text` between separators, empty ones included; views into it.
[[nodiscard]] std::vector<std::string_view> split(std::string_view text, char separator);
// Views into a temporary string would dangle.
std::vector<std::string_view> split(std::string&& text, char separator) = delete;

/// The words of `line`, separated by spaces and tabs; views into it.
[[nodiscard]] std::vector<std::string_view> words(std::string_view line);

/// What follows the last slash of `path`; a view into it.
[[nodiscard]] std::string_view leafOf(std::string_view path);

}  // namespace quillmark
