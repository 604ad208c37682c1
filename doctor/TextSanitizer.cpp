// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "TextSanitizer.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include <boost/algorithm/string/replace.hpp>
#include <boost/locale/utf.hpp>

#include "platform/Utf8.h"

namespace quillmark::doctor {
namespace {

namespace utf = boost::locale::utf;
using Utf8 = utf::utf_traits<char>;

constexpr auto hiddenMark = "[hidden]";
constexpr auto ellipsis = "…";

bool isBetween(utf::code_point c, utf::code_point first, utf::code_point last) {
  return c >= first && c <= last;
}

/// Whether `c` is a control character for a terminal, or changes the order in which
/// the text after it is shown.
bool isUnsafe(utf::code_point c) {
  return c < 0x20 || isBetween(c, 0x7F, 0x9F) || c == 0x061C || isBetween(c, 0x200B, 0x200F) ||
         isBetween(c, 0x2028, 0x202E) || isBetween(c, 0x2060, 0x206F) || c == 0xFEFF;
}

std::string escaped(utf::code_point c) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), c < 0x100 ? "\\x%02X" : "\\u%04X",
                static_cast<unsigned>(c));
  return text.data();
}

}  // namespace

void TextSanitizer::hide(std::string_view secret) {
  if (!secret.empty()) {
    secrets_.emplace_back(secret);
    std::stable_sort(secrets_.begin(), secrets_.end(),
                     [](const auto& a, const auto& b) { return a.size() > b.size(); });
  }
}

std::string TextSanitizer::operator()(std::string_view untrusted, std::size_t maxCharacters) const {
  std::string plain(untrusted);
  for (const auto& secret : secrets_) {
    boost::algorithm::replace_all(plain, secret, hiddenMark);
  }
  const std::string text = asUtf8(plain);

  std::string shown;
  std::size_t characters = 0;
  for (auto at = text.begin(); at != text.end();) {
    if (++characters > maxCharacters) {
      return shown + ellipsis;
    }
    const auto start = at;
    const auto c = Utf8::decode(at, text.end());
    shown += isUnsafe(c) ? escaped(c) : std::string(start, at);
  }
  return shown;
}

}  // namespace quillmark::doctor
