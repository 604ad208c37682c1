// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace quillmark {

/// Whether the character has a shape, but not in any font of the machine that Qt can use for
/// it. Fonts that are installed while the program runs do not count. UI thread.
[[nodiscard]] bool isInNoFont(char32_t character);

}  // namespace quillmark
