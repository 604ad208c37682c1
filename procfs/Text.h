// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quillmark {

/// The parts of `text` between separators, empty ones included; views into it.
[[nodiscard]] std::vector<std::string_view> split(std::string_view text, char separator);
// Views into a temporary string would dangle.
std::vector<std::string_view> split(std::string&& text, char separator) = delete;

/// The words of `line`, separated by spaces and tabs; views into it.
[[nodiscard]] std::vector<std::string_view> words(std::string_view line);

/// What follows the last slash of `path`; a view into it.
[[nodiscard]] std::string_view leafOf(std::string_view path);

}  // namespace quillmark
