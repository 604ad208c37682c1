// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "TextSanitizer.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdio>

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
  }
}

std::string TextSanitizer::withoutSecrets(std::string_view text) const {
  // Marked first, because secrets may overlap.
  std::vector<bool> isSecret(text.size());
  for (const auto& secret : secrets_) {
    for (auto at = text.find(secret); at != text.npos; at = text.find(secret, at + 1)) {
      std::fill_n(isSecret.begin() + static_cast<std::ptrdiff_t>(at), secret.size(), true);
    }
  }
  std::string plain;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!isSecret[i]) {
      plain += text[i];
    } else if (i == 0 || !isSecret[i - 1]) {
      plain += hiddenMark;
    }
  }
  return plain;
}

std::string TextSanitizer::operator()(std::string_view untrusted, std::size_t maxCharacters) const {
  const std::string text = asUtf8(withoutSecrets(untrusted));

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
