// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/DisplayText.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>

#include "viewmodel/ScriptLimits.h"

namespace quillmark {
namespace {

// No real text is this long, and longer text would block the window: the time to break
// one word into lines grows with the square of its length, 11 ms for this many characters.
constexpr std::size_t maxCharacters = 16'000;
// No real text changes this often between scripts, or between kinds of symbols. Each change
// may need another font, which takes as long to lay out as several characters.
constexpr int maxChanges = 3'000;

bool beginsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

/// Also of characters without a script, such as those for private use.
constexpr std::uint32_t neutralKind = QChar::Script_Unknown;

/// Characters of one kind are likely to be in one font.
std::uint32_t kindOf(char32_t character) {
  constexpr char32_t blockSize = 128;
  const auto script = scriptOf(character);
  // Marks belong to the character before them; each font has ASCII's digits and signs.
  if (script == QChar::Script_Inherited ||
      (script == QChar::Script_Common && character < blockSize)) {
    return neutralKind;
  }
  switch (script) {
    case QChar::Script_Common:
      return QChar::ScriptCount + character / blockSize;
    // With Han, the scripts of Japanese: it changes between them with almost every word.
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
      return QChar::Script_Han;
    default:
      return script;
  }
}

/// The position at which the text has changed too often.
std::size_t endBeforeTooManyChanges(const std::u32string& text) {
  auto last = neutralKind;
  auto changes = 0;
  const auto end = std::find_if(text.begin(), text.end(), [&](char32_t character) {
    const auto kind = kindOf(character);
    if (kind != neutralKind && kind != last) {
      last = kind;
      ++changes;
    }
    return changes > maxChanges;
  });
  return static_cast<std::size_t>(end - text.begin());
}

}  // namespace

QString displayText(std::string_view text) {
  // Shared by all texts, because Qt keeps the fonts for the whole process.
  static ScriptLimits limits;
  // Cut before the conversion: a text may be as long as a whole answer.
  std::size_t characters = 0;
  const auto* const end = std::find_if(text.begin(), text.end(), [&](char byte) {
    return beginsCharacter(byte) && ++characters > maxCharacters;
  });
  auto shown = QString::fromUtf8(text.data(), end - text.begin()).toStdU32String();
  limits.apply(shown);
  const auto length = endBeforeTooManyChanges(shown);
  const auto isCut = end != text.end() || length < shown.size();
  shown.resize(length);
  auto result = QString::fromStdU32String(isCut ? shown + U'…' : shown);
  result.squeeze();
  return result;
}

}  // namespace quillmark
