// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/DisplayText.h"

#include <algorithm>
#include <cstddef>
#include <string>

#include "viewmodel/CharacterKind.h"
#include "viewmodel/FontCoverage.h"
#include "viewmodel/LongTexts.h"
#include "viewmodel/ScriptLimits.h"
#include "viewmodel/Turns.h"

namespace quillmark {
namespace {

// No real text is this long, and the layout of a longer one would block the window.
constexpr std::size_t maxCharacters = 16'000;

constexpr char32_t replacement = U'\uFFFD';

/// The text's beginning of at most so many characters. Sets `isCut` if it is shorter.
std::string_view beginning(std::string_view text, std::size_t characters, bool& isCut) {
  const auto* const end = std::find_if(text.begin(), text.end(), [&](char byte) {
    const auto begins = (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
    return begins && characters-- == 0;
  });
  isCut = end != text.end() || isCut;
  return {text.begin(), end};
}

/// Whether the byte is a character that every font has.
bool isPrintableAscii(char byte) {
  return (byte >= ' ' && byte <= '~') || byte == '\n' || byte == '\r' || byte == '\t';
}

/// Puts U+FFFD in place of all but the first marks of one character. Qt needs time that grows
/// with the square of their number.
void replaceManyMarks(std::u32string& text) {
  // The most that Unicode's stream-safe text has.
  constexpr std::size_t maxMarks = 30;
  std::size_t marks = 0;
  std::replace_if(
      text.begin(), text.end(),
      [&](char32_t character) {
        marks = isMark(character) ? marks + 1 : 0;
        return marks > maxMarks;
      },
      replacement);
}

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
  std::replace_if(shown.begin(), shown.end(), isInNoFont, replacement);
  replaceManyMarks(shown);
  static ScriptLimits scripts{Turns::ofProcess()};
  scripts.apply(shown);
  isCut = shortenToLimit(shown) || isCut;
  return QString::fromStdU32String(shown);
}

}  // namespace

QString displayText(std::string_view text) {
  static LongTexts longTexts{Turns::ofProcess()};
  // Cut before the conversion: a text may be as long as a whole answer.
  auto isCut = false;
  text = beginning(text, maxCharacters, isCut);
  auto isLong = false;
  const auto shortened = beginning(text, LongTexts::longest, isLong);
  if (isLong && !longTexts.mayShow(text)) {
    text = shortened;
    isCut = true;
  }
  auto shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
  // The other limits are no matter for ASCII, but would take a millisecond.
  if (!std::all_of(text.begin(), text.end(), isPrintableAscii)) {
    shown = withinLimits(shown, isCut);
  }
  if (isCut) {
    shown += u'…';
  }
  shown.squeeze();
  return shown;
}

}  // namespace quillmark
