// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <array>
#include <string>

namespace quillmark::test {

constexpr char32_t lastCodePoint = 0x10FFFF;

/// A character of one, two, three and four bytes.
constexpr std::array<char32_t, 4> oneOfEachLength{0x41, 0xE9, 0x20AC, 0x1F600};

/// For loops over all characters that could be white space, and some of each range beyond.
constexpr char32_t nextToTry(char32_t c) { return c + (c < 0x10000 ? 1 : 63); }

constexpr bool isSurrogate(char32_t c) { return c >= 0xD800 && c <= 0xDFFF; }

/// How many bytes UTF-8 takes for `c`.
constexpr int utf8Length(char32_t c) {
  if (c < 0x80) {
    return 1;
  }
  if (c < 0x800) {
    return 2;
  }
  return c < 0x10000 ? 3 : 4;
}

/// The bit pattern of UTF-8 with `length` bytes for `c`, even if that is longer than
/// allowed, or `c` is no character.
inline std::string utf8(char32_t c, int length) {
  if (length == 1) {
    return {static_cast<char>(c)};
  }
  std::string bytes(static_cast<std::size_t>(length), '\0');
  for (auto at = bytes.rbegin(); at != bytes.rend() - 1; ++at) {
    *at = static_cast<char>(0x80 | (c & 0x3F));
    c >>= 6;
  }
  bytes.front() = static_cast<char>((0xF00 >> length) | c);
  return bytes;
}

inline std::string utf8(char32_t c) { return utf8(c, utf8Length(c)); }

}  // namespace quillmark::test
