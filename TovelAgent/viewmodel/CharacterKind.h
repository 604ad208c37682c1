// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>

namespace quillmark {

/// A script, the emoji, or a block of 128 symbols: characters of one kind are likely to be in
/// one font. All functions: any thread.
using CharacterKind = std::uint32_t;

[[nodiscard]] CharacterKind kindOf(char32_t character);

/// Latin, Greek, Cyrillic, and what belongs to no single script, such as digits and
/// punctuation. Together they need only a few fonts.
[[nodiscard]] bool isBasic(CharacterKind kind);

/// Scripts that are not in widespread use today, and symbols that are not in plane 0. Their
/// characters are often in one of the last fonts that Qt looks at.
[[nodiscard]] bool isRare(CharacterKind kind);

/// Whether Qt draws the character as a part of the one before it.
[[nodiscard]] bool isMark(char32_t character);

/// How many Latin characters take Qt as long to lay out and paint as one of this kind.
[[nodiscard]] std::size_t layoutWeight(CharacterKind kind);

}  // namespace quillmark
