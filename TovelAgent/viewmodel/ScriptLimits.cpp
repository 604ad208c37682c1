// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/ScriptLimits.h"

#include <algorithm>
#include <cstddef>

namespace quillmark {
namespace {

/// What Unicode lists as in widespread customary use today (Unicode Standard Annex 31,
/// "Recommended Scripts"), and what belongs to no single script, such as symbols and emoji.
constexpr auto commonScripts = {
    QChar::Script_Unknown,  QChar::Script_Inherited, QChar::Script_Common,
    QChar::Script_Arabic,   QChar::Script_Armenian,  QChar::Script_Bengali,
    QChar::Script_Bopomofo, QChar::Script_Cyrillic,  QChar::Script_Devanagari,
    QChar::Script_Ethiopic, QChar::Script_Georgian,  QChar::Script_Greek,
    QChar::Script_Gujarati, QChar::Script_Gurmukhi,  QChar::Script_Han,
    QChar::Script_Hangul,   QChar::Script_Hebrew,    QChar::Script_Hiragana,
    QChar::Script_Kannada,  QChar::Script_Katakana,  QChar::Script_Khmer,
    QChar::Script_Lao,      QChar::Script_Latin,     QChar::Script_Malayalam,
    QChar::Script_Myanmar,  QChar::Script_Oriya,     QChar::Script_Sinhala,
    QChar::Script_Tamil,    QChar::Script_Telugu,    QChar::Script_Thaana,
    QChar::Script_Thai,     QChar::Script_Tibetan};

/// No real agent sends texts in more of the other scripts.
constexpr std::size_t maxRareScripts = 4;

}  // namespace

QChar::Script scriptOf(char32_t character) {
  const auto script = QChar::script(character);
  return script < QChar::ScriptCount ? script : QChar::Script_Unknown;
}

// Qt opens the fonts of each script on the UI thread and keeps them. Text in all scripts
// would open most fonts of the machine, which takes seconds and 100 MiB.
void ScriptLimits::apply(std::u32string& text) {
  std::replace_if(
      text.begin(), text.end(), [&](char32_t character) { return !allows(character); }, U'\uFFFD');
}

bool ScriptLimits::allows(char32_t character) {
  const auto script = scriptOf(character);
  if (std::find(commonScripts.begin(), commonScripts.end(), script) != commonScripts.end()) {
    return true;
  }
  if (rareScripts_.count() < maxRareScripts) {
    rareScripts_.set(script);
  }
  return rareScripts_.test(script);
}

}  // namespace quillmark
