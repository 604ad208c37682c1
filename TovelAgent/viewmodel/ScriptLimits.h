// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <set>
#include <string>

#include <QObject>

#include "viewmodel/CharacterKind.h"

namespace quillmark {

/// Limits how many fonts the agent's texts can make Qt open, and how many of them at once.
/// Real texts stay below the limits. UI thread only.
class ScriptLimits : public QObject {
  Q_OBJECT

 public:
  /// The limits of all texts, because Qt keeps the fonts for the whole process.
  [[nodiscard]] static ScriptLimits& ofProcess();

  /// Puts U+FFFD in place of all characters that are not basic if the text contains more than
  /// eight kinds of them. Of the rare kinds, only the first two that this object meets are
  /// left in texts. Characters of a kind that is new become U+FFFD if several new kinds came
  /// just before: the same text then keeps more of its characters after the next `eased`.
  void apply(std::u32string& text);

  /// Whether the last texts lost characters only until the next `eased`.
  [[nodiscard]] bool waits() const { return waits_; }

 Q_SIGNALS:
  /// Texts that were shown before should be converted again.
  void eased();

 private:
  [[nodiscard]] bool leaves(CharacterKind kind);
  void allowNewKinds();

  std::set<CharacterKind> left_;
  std::size_t rareKinds_ = 0;
  std::size_t newKinds_ = 0;
  bool waits_ = false;
};

}  // namespace quillmark
