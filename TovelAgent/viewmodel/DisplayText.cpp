// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/DisplayText.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "viewmodel/CharacterKind.h"
#include "viewmodel/FontCoverage.h"
#include "viewmodel/ScriptLimits.h"

namespace quillmark {
namespace {

// No real text is this long, and longer text would block the window: the time to break
// one word into lines grows with the square of its length, 11 ms for this many characters.
constexpr std::size_t maxCharacters = 16'000;

bool beginsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

bool isBeyondAscii(char byte) { return (static_cast<unsigned char>(byte) & 0x80U) != 0; }

/// Shortens the text so that its layout takes no longer than that of `maxCharacters` Latin
/// characters. Returns whether something was cut off.
bool shortenToLimit(std::u32string& text) {
  // Qt lays out each piece in one script or font by itself.
  constexpr std::size_t changeWeight = 40;
  std::size_t weight = 0;
  auto last = CharacterKind{};
  const auto end = std::find_if(text.begin(), text.end(), [&](char32_t character) {
    const auto kind = kindOf(character);
    weight += layoutWeight(kind);
    if (!isBasic(kind)) {
      weight += kind == last ? 0 : changeWeight;
      last = kind;
    }
    return weight > maxCharacters;
  });
  const auto isCut = end != text.end();
  text.erase(end, text.end());
  return isCut;
}

/// Converts text within the limits of scripts and layout. Sets `isCut` if something was cut off.
QString withinLimits(const QString& text, bool& isCut) {
  auto shown = text.toStdU32String();
  // For each of these, Qt would look at all fonts, which takes 10 ms for each script and size.
  std::replace_if(shown.begin(), shown.end(), isInNoFont, U'\uFFFD');
  ScriptLimits::ofProcess().apply(shown);
  isCut = shortenToLimit(shown) || isCut;
  return QString::fromStdU32String(shown);
}

}  // namespace

QString displayText(std::string_view text) {
  // Cut before the conversion: a text may be as long as a whole answer.
  std::size_t characters = 0;
  const auto* const end = std::find_if(text.begin(), text.end(), [&](char byte) {
    return beginsCharacter(byte) && ++characters > maxCharacters;
  });
  auto isCut = end != text.end();
  auto shown = QString::fromUtf8(text.data(), end - text.begin());
  // The other limits are no matter for ASCII, but would take a millisecond.
  if (std::any_of(text.begin(), end, isBeyondAscii)) {
    shown = withinLimits(shown, isCut);
  }
  if (isCut) {
    shown += u'…';
  }
  shown.squeeze();
  return shown;
}

}  // namespace quillmark
