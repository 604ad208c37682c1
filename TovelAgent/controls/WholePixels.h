// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cmath>

#include <QtGlobal>

namespace quillmark {

/// The whole device pixels nearest to a length or place. At scales like 1.5 many
/// lie in the middle of two but for an error of calculation: those all go up, so
/// that what belongs together stays together.
[[nodiscard]] inline int wholePixels(qreal pixels) {
  constexpr qreal middle = 0.5 + 1.0 / 64;
  return static_cast<int>(std::floor(pixels + middle));
}

}  // namespace quillmark
