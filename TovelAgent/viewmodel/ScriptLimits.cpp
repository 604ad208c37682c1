// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/ScriptLimits.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>

namespace quillmark {
namespace {

using Scripts = std::bitset<QChar::ScriptCount>;

/// Latin, Greek, Cyrillic, and what belongs to no single script, such as digits, symbols and
/// emoji. Together they need only a few fonts.
constexpr auto basicScripts = {QChar::Script_Unknown, QChar::Script_Inherited,
                               QChar::Script_Common,  QChar::Script_Latin,
                               QChar::Script_Greek,   QChar::Script_Cyrillic};

/// With the basic ones, these are the scripts that Unicode lists as in widespread
/// customary use today (Unicode Standard Annex 31, "Recommended Scripts").
constexpr auto everydayScripts = {
    QChar::Script_Arabic,   QChar::Script_Armenian,   QChar::Script_Bengali,
    QChar::Script_Bopomofo, QChar::Script_Devanagari, QChar::Script_Ethiopic,
    QChar::Script_Georgian, QChar::Script_Gujarati,   QChar::Script_Gurmukhi,
    QChar::Script_Han,      QChar::Script_Hangul,     QChar::Script_Hebrew,
    QChar::Script_Hiragana, QChar::Script_Kannada,    QChar::Script_Katakana,
    QChar::Script_Khmer,    QChar::Script_Lao,        QChar::Script_Malayalam,
    QChar::Script_Myanmar,  QChar::Script_Oriya,      QChar::Script_Sinhala,
    QChar::Script_Tamil,    QChar::Script_Telugu,     QChar::Script_Thaana,
    QChar::Script_Thai,     QChar::Script_Tibetan};

/// No real text mixes more scripts besides the basic ones.
constexpr std::size_t maxFurtherScripts = 8;
/// No real agent sends texts in more scripts that are neither basic nor everyday.
constexpr std::size_t maxRareScripts = 4;

Scripts setOf(std::initializer_list<QChar::Script> scripts) {
  Scripts set;
  for (const auto script : scripts) {
    set.set(script);
  }
  return set;
}

}  // namespace

QChar::Script scriptOf(char32_t character) {
  const auto script = QChar::script(character);
  return script < QChar::ScriptCount ? script : QChar::Script_Unknown;
}

// Qt opens the fonts of each script on the UI thread and keeps them. Text in all scripts
// would open most fonts of the machine, which takes seconds and 100 MiB.
void ScriptLimits::apply(std::u32string& text) {
  static const auto basic = setOf(basicScripts);
  static const auto everyday = setOf(everydayScripts);

  Scripts used;
  for (const auto character : text) {
    used.set(scriptOf(character));
  }
  auto shown = basic;
  if ((used & ~basic).count() <= maxFurtherScripts) {
    const auto rare = used & ~basic & ~everyday;
    for (std::size_t script = 0; script < rare.size(); ++script) {
      if (rare.test(script) && rareScripts_.count() < maxRareScripts) {
        rareScripts_.set(script);
      }
    }
    shown |= everyday | rareScripts_;
  }
  std::replace_if(
      text.begin(), text.end(),
      [&](char32_t character) { return !shown.test(scriptOf(character)); }, U'\uFFFD');
}

}  // namespace quillmark
