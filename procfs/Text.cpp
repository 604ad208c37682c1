// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "procfs/Text.h"

#include <array>
#include <ctime>

#include <boost/locale/utf.hpp>

namespace quillmark {
namespace {

namespace utf = boost::locale::utf;
using Utf8 = utf::utf_traits<char>;

constexpr std::string_view replacementCharacter = "\xEF\xBF\xBD";

}  // namespace

std::string asUtf8(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  for (const auto* at = bytes.begin(); at != bytes.end();) {
    const auto* next = at;
    if (utf::is_valid_codepoint(Utf8::decode(next, bytes.end()))) {
      text.append(at, next);
      at = next;
    } else {
      // Skip one byte only: what an incomplete character consumed may be valid text.
      text += replacementCharacter;
      ++at;
    }
  }
  return text;
}

std::string rfc3339(std::chrono::system_clock::time_point time) {
  const std::time_t seconds =
      std::chrono::floor<std::chrono::seconds>(time).time_since_epoch().count();
  std::tm parts{};
  gmtime_r(&seconds, &parts);
  std::array<char, 32> text{};
  return {text.data(), std::strftime(text.data(), text.size(), "%Y-%m-%dT%H:%M:%SZ", &parts)};
}

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
