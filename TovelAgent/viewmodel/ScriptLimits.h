// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <set>
#include <string>

#include <QChar>

#include "viewmodel/CharacterKind.h"
#include "viewmodel/Turns.h"

namespace quillmark {

/// Limits how many fonts the agent's texts can make Qt open, and how many of them at once.
/// Real texts stay below the limits. UI thread only.
class ScriptLimits {
 public:
  explicit ScriptLimits(Turns& turns) : turns_(turns) {}

  /// Puts U+FFFD in place of all characters that are not basic if the text contains more than
  /// eight kinds of them. Of the rare kinds, only the first two that this object meets are
  /// shown. Each kind takes a turn: its characters are U+FFFD until then.
  void apply(std::u32string& text);

 private:
  [[nodiscard]] bool mayShow(CharacterKind kind);

  Turns& turns_;
  // The panel's own texts have opened the fonts of these.
  std::set<CharacterKind> shown_ = {QChar::Script_Unknown, QChar::Script_Common,
                                    QChar::Script_Latin};
  std::size_t rareKinds_ = 0;
};

}  // namespace quillmark
