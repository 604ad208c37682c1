// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <bitset>
#include <string>

#include <QChar>

namespace quillmark {

/// Limits how many scripts the agent's texts can make Qt open fonts for. Real texts stay
/// far below the limits. Any thread, but one object only one at a time.
class ScriptLimits {
 public:
  using Scripts = std::bitset<QChar::ScriptCount>;

  /// Puts U+FFFD in place of all characters except Latin, Greek, Cyrillic and symbols if the
  /// text contains more than eight further scripts. Of the scripts that are not in widespread
  /// use today, only the first four that this object meets are left in texts.
  void apply(std::u32string& text);

 private:
  Scripts rareScripts_;
};

}  // namespace quillmark
