// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/CharacterKind.h"

#include <algorithm>
#include <array>

#include <QChar>

#include <unicode/uchar.h>

namespace quillmark {
namespace {

constexpr std::array basicScripts = {QChar::Script_Unknown, QChar::Script_Common,
                                     QChar::Script_Latin, QChar::Script_Greek,
                                     QChar::Script_Cyrillic};

/// With the basic ones, and those of Japanese, these are the scripts that Unicode lists as in
/// widespread customary use today (Unicode Standard Annex 31, "Recommended Scripts").
constexpr std::array everydayScripts = {
    QChar::Script_Arabic,    QChar::Script_Armenian,   QChar::Script_Bengali,
    QChar::Script_Bopomofo,  QChar::Script_Devanagari, QChar::Script_Ethiopic,
    QChar::Script_Georgian,  QChar::Script_Gujarati,   QChar::Script_Gurmukhi,
    QChar::Script_Han,       QChar::Script_Hangul,     QChar::Script_Hebrew,
    QChar::Script_Kannada,   QChar::Script_Khmer,      QChar::Script_Lao,
    QChar::Script_Malayalam, QChar::Script_Myanmar,    QChar::Script_Oriya,
    QChar::Script_Sinhala,   QChar::Script_Tamil,      QChar::Script_Telugu,
    QChar::Script_Thaana,    QChar::Script_Thai,       QChar::Script_Tibetan};

// The numbers of the kinds: scripts as in Qt, then emoji, then blocks of symbols.
constexpr CharacterKind emoji = QChar::ScriptCount;
constexpr CharacterKind firstSymbols = emoji + 1;
constexpr char32_t blockSize = 128;

constexpr char32_t firstBeyondPlane0 = 0x10000;

bool isEmoji(UChar32 character) {
  return u_hasBinaryProperty(character, UCHAR_EMOJI_PRESENTATION) != 0 ||
         (character >= UChar32{firstBeyondPlane0} &&
          u_hasBinaryProperty(character, UCHAR_EXTENDED_PICTOGRAPHIC) != 0);
}

/// Whether it is East Asian punctuation, or a mark or variation selector on such letters.
bool isAmongHan(UChar32 character) {
  const auto block = ublock_getCode(character);
  return block == UBLOCK_CJK_SYMBOLS_AND_PUNCTUATION || block == UBLOCK_HIRAGANA ||
         block == UBLOCK_KATAKANA || block == UBLOCK_HALFWIDTH_AND_FULLWIDTH_FORMS ||
         block == UBLOCK_VARIATION_SELECTORS_SUPPLEMENT;
}

bool contains(const auto& scripts, CharacterKind kind) {
  return std::find(scripts.begin(), scripts.end(), kind) != scripts.end();
}

bool isShared(QChar::Script script) {
  return script == QChar::Script_Common || script == QChar::Script_Inherited ||
         script == QChar::Script_Unknown;
}

/// What several scripts share, such as the Arabic comma, is in the fonts of the script to
/// whose block it belongs.
QChar::Script scriptOf(char32_t character) {
  constexpr char32_t firstAfterCyrillic = 0x530;
  constexpr char32_t firstOfGeneralPunctuation = 0x2000;
  auto script = QChar::script(character);
  if (character >= firstAfterCyrillic && character < firstOfGeneralPunctuation) {
    while (isShared(script)) {
      script = QChar::script(--character);
    }
  }
  return script;
}

/// Also the letters and marks that these scripts have in later blocks, where few fonts have
/// them, but not the marks that belong to emoji.
bool isSymbol(UChar32 character) {
  constexpr UChar32 lastOfGeneralPunctuation = 0x206F;
  const auto script = QChar::script(static_cast<char32_t>(character));
  return character > lastOfGeneralPunctuation &&
         (script == QChar::Script_Inherited || contains(basicScripts, script)) &&
         ublock_getCode(character) != UBLOCK_VARIATION_SELECTORS;
}

}  // namespace

CharacterKind kindOf(char32_t character) {
  const auto code = static_cast<UChar32>(character);
  if (isEmoji(code)) {
    return emoji;
  }
  if (isAmongHan(code)) {
    return QChar::Script_Han;
  }
  if (isSymbol(code)) {
    return firstSymbols + character / blockSize;
  }
  switch (const auto script = scriptOf(character)) {
    case QChar::Script_Inherited:
      return QChar::Script_Common;
    // Japanese changes between them with almost every word.
    case QChar::Script_Hiragana:
    case QChar::Script_Katakana:
      return QChar::Script_Han;
    default:
      // A newer Qt than the one of the build may know more scripts.
      return std::min<CharacterKind>(script, QChar::ScriptCount - 1);
  }
}

bool isBasic(CharacterKind kind) { return contains(basicScripts, kind); }

bool isRare(CharacterKind kind) {
  return kind < emoji ? !isBasic(kind) && !contains(everydayScripts, kind)
                      : kind >= firstSymbols + firstBeyondPlane0 / blockSize;
}

bool isMark(char32_t character) {
  return (U_GET_GC_MASK(static_cast<UChar32>(character)) & U_GC_M_MASK) != 0;
}

std::size_t layoutWeight(CharacterKind kind) {
  // Qt decodes the picture of an emoji in each layout, and again to paint it.
  constexpr std::size_t emojiWeight = 800;
  constexpr std::size_t rareWeight = 30;
  constexpr std::size_t symbolWeight = 5;
  if (kind == emoji) {
    return emojiWeight;
  }
  if (isRare(kind)) {
    return rareWeight;
  }
  return kind >= firstSymbols ? symbolWeight : 1;
}

}  // namespace quillmark
