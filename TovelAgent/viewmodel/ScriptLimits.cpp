// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "viewmodel/ScriptLimits.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include <QTimer>

namespace quillmark {
namespace {

using namespace std::chrono_literals;

/// No real text mixes more kinds besides the basic ones.
constexpr std::size_t maxFurtherKinds = 8;
/// No real agent sends characters of more rare kinds.
constexpr std::size_t maxRareKinds = 2;
/// Qt needs up to 13 ms to open the fonts of a kind, for each size of text.
constexpr std::size_t maxNewKindsAtOnce = 3;
/// Long enough for a frame and for input.
constexpr auto pause = 30ms;

}  // namespace

ScriptLimits& ScriptLimits::ofProcess() {
  static ScriptLimits limits;
  return limits;
}

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
        return !isBasic(kind) && (hasTooMany || !leaves(kind));
      },
      U'\uFFFD');
}

bool ScriptLimits::leaves(CharacterKind kind) {
  if (left_.contains(kind)) {
    return true;
  }
  if (isRare(kind) && rareKinds_ == maxRareKinds) {
    return false;
  }
  if (newKinds_ == maxNewKindsAtOnce) {
    waits_ = true;
    return false;
  }
  if (newKinds_ == 0) {
    QTimer::singleShot(pause, this, &ScriptLimits::allowNewKinds);
  }
  ++newKinds_;
  if (isRare(kind)) {
    ++rareKinds_;
  }
  left_.insert(kind);
  return true;
}

void ScriptLimits::allowNewKinds() {
  newKinds_ = 0;
  if (std::exchange(waits_, false)) {
    Q_EMIT eased();
  }
}

}  // namespace quillmark
