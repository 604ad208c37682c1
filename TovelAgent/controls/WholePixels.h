// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cmath>

#include <QtGlobal>

namespace quillmark {

/// Rounds a length or position to the nearest whole device pixel. At scales like
/// 1.5 many values are halfway between two pixels, plus or minus a floating-point
/// error. All of these round up, so that edges at the same place stay together.
[[nodiscard]] inline int wholePixels(qreal pixels) {
  constexpr qreal roundingOffset = 0.5 + 1.0 / 64;
  return static_cast<int>(std::floor(pixels + roundingOffset));
}

}  // namespace quillmark
