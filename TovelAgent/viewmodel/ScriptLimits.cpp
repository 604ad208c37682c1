// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/ScriptLimits.h"

#include <algorithm>

namespace quillmark {
namespace {

/// No real text mixes more kinds besides the basic ones.
constexpr std::size_t maxFurtherKinds = 8;
/// No real agent sends characters of more rare kinds.
constexpr std::size_t maxRareKinds = 2;

}  // namespace

// Qt opens the fonts of each kind on the UI thread and keeps them. Text in all scripts would
// open most fonts of the machine, which takes seconds and 100 MiB.
void ScriptLimits::apply(std::u32string& text) {
  std::set<CharacterKind> further;
  for (const auto character : text) {
    if (const auto kind = kindOf(character); !isBasic(kind)) {
      further.insert(kind);
    }
  }
  const auto hasTooMany = further.size() > maxFurtherKinds;
  std::replace_if(
      text.begin(), text.end(),
      [&](char32_t character) {
        const auto kind = kindOf(character);
        return (hasTooMany && !isBasic(kind)) || !mayShow(kind);
      },
      U'\uFFFD');
}

bool ScriptLimits::mayShow(CharacterKind kind) {
  if (shown_.contains(kind)) {
    return true;
  }
  if (isRare(kind) && rareKinds_ == maxRareKinds) {
    return false;
  }
  if (!turns_.take()) {
    return false;
  }
  if (isRare(kind)) {
    ++rareKinds_;
  }
  shown_.insert(kind);
  return true;
}

}  // namespace quillmark
