// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/DisplayText.h"

#include <algorithm>
#include <cstddef>

namespace quillmark {
namespace {

// No honest text is as long, and a longer one would hold up the window: breaking an
// endless word into lines costs the square of its length, 11 ms for so many characters.
constexpr std::size_t mostCharacters = 16'000;

bool beginsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

}  // namespace

QString displayText(std::string_view text) {
  // Cut before it is converted: a text may be as long as a whole answer.
  std::size_t characters = 0;
  const auto* const end = std::find_if(text.begin(), text.end(), [&](char byte) {
    return beginsCharacter(byte) && ++characters > mostCharacters;
  });
  const auto shown = QString::fromUtf8(text.data(), end - text.begin());
  return end == text.end() ? shown : shown + QStringLiteral("…");
}

}  // namespace quillmark
