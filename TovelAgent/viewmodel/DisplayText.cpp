// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/DisplayText.h"

#include <algorithm>
#include <cstddef>

namespace quillmark {
namespace {

// No real text is this long, and longer text would block the window: the time to break
// one word into lines grows with the square of its length, 11 ms for this many characters.
constexpr std::size_t maxCharacters = 16'000;

bool beginsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

}  // namespace

QString displayText(std::string_view text) {
  // Cut before the conversion: a text may be as long as a whole answer.
  std::size_t characters = 0;
  const auto* const end = std::find_if(text.begin(), text.end(), [&](char byte) {
    return beginsCharacter(byte) && ++characters > maxCharacters;
  });
  const auto shown = QString::fromUtf8(text.data(), end - text.begin());
  return end == text.end() ? shown : shown + QStringLiteral("…");
}

}  // namespace quillmark
