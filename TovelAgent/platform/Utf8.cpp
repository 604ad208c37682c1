// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/Utf8.h"

#include <boost/locale/utf.hpp>

namespace quillmark {
namespace {

namespace utf = boost::locale::utf;
using Utf8 = utf::utf_traits<char>;

bool isLineSpace(utf::code_point c) {
  return c == 0x09 || c == 0x20 || c == 0xA0 || c == 0x1680 || (c >= 0x2000 && c <= 0x200A) ||
         c == 0x202F || c == 0x205F || c == 0x3000;
}

bool isWhiteSpace(utf::code_point c) {
  return isLineSpace(c) || (c >= 0x0A && c <= 0x0D) || c == 0x85 || c == 0x2028 || c == 0x2029;
}

/// The part of `text` from its first to its last character that is not a space.
template <class IsSpace>
std::string_view trimEnds(IsSpace isSpace, std::string_view text) {
  const auto* begin = text.end();  // the end of the text until a character is found
  const auto* end = text.end();
  for (const auto* at = text.begin(); at != text.end();) {
    const auto* const start = at;
    if (!isSpace(Utf8::decode(at, text.end()))) {
      if (begin == text.end()) {
        begin = start;
      }
      end = at;
    }
  }
  return {begin, end};
}

}  // namespace

bool isUtf8(std::string_view bytes) {
  for (auto at = bytes.begin(); at != bytes.end();) {
    if (!utf::is_valid_codepoint(Utf8::decode(at, bytes.end()))) {
      return false;
    }
  }
  return true;
}

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
      text += "\uFFFD";
      ++at;
    }
  }
  return text;
}

std::string_view trimWhiteSpace(std::string_view text) { return trimEnds(isWhiteSpace, text); }

std::string_view trimSpacesAndTabs(std::string_view text) { return trimEnds(isLineSpace, text); }

}  // namespace quillmark
