// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <bitset>
#include <string>

#include <QChar>

namespace quillmark {

/// As `QChar::script`, but `Script_Unknown` for scripts that only a newer Qt knows than the
/// one that the program was built with. Any thread.
[[nodiscard]] QChar::Script scriptOf(char32_t character);

/// Limits how many scripts the agent's texts can make Qt open fonts for. Real texts stay
/// below the limit. Any thread, but no object from two threads at the same time.
class ScriptLimits {
 public:
  /// Puts U+FFFD in place of all characters except Latin, Greek, Cyrillic and symbols if the
  /// text contains more than eight further scripts. Of the scripts that are not in widespread
  /// use today, only the first four that this object meets are left in texts.
  void apply(std::u32string& text);

 private:
  std::bitset<QChar::ScriptCount> rareScripts_;
};

}  // namespace quillmark
