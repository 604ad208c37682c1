// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/Text.h"

namespace quillmark {

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t end = text.find(separator);
    parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) {
      return parts;
    }
    text.remove_prefix(end + 1);
  }
}

std::vector<std::string_view> words(std::string_view line) {
  constexpr std::string_view blanks = " \t";
  std::vector<std::string_view> result;
  std::size_t begin = line.find_first_not_of(blanks);
  while (begin != std::string_view::npos) {
    const std::size_t end = line.find_first_of(blanks, begin);
    result.push_back(line.substr(begin, end - begin));
    begin = line.find_first_not_of(blanks, end);
  }
  return result;
}

std::string_view leafOf(std::string_view path) { return path.substr(path.rfind('/') + 1); }

}  // namespace quillmark
