// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

namespace quillmark {

/// Puts U+FFFD in place of each character of a script that is not in widespread use today,
/// and in place of all characters except Latin, Greek, Cyrillic and symbols if the text
/// contains more than eight further scripts. Any thread.
void replaceRareScripts(std::u32string& text);

}  // namespace quillmark
