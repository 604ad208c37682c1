// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <set>
#include <string>

#include "viewmodel/CharacterKind.h"

namespace quillmark {

/// Limits how many fonts the agent's texts can make Qt open. Real texts stay below the
/// limits. Any thread, but no object from two threads at the same time.
class ScriptLimits {
 public:
  /// Puts U+FFFD in place of all characters that are not basic if the text contains more than
  /// eight kinds of them. Of the rare kinds, only the first two that this object meets are
  /// left in texts.
  void apply(std::u32string& text);

 private:
  [[nodiscard]] bool leaves(CharacterKind rareKind);

  std::set<CharacterKind> rareKinds_;
};

}  // namespace quillmark
