// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QImage>

namespace quillmark::test {

/// How far apart the two pixels are that differ most, 0 to 255. Pictures of
/// unequal size are as far apart as can be.
[[nodiscard]] int difference(const QImage& one, const QImage& other);

/// What is not of the colour in the top left corner. What moves may leave a trace
/// behind of the faintest shade.
[[nodiscard]] QRect inked(const QImage& image);

/// How many pixels of the colour there are from one point on, in one direction.
[[nodiscard]] int run(const QImage& image, QPoint from, QPoint step, const QColor& color);

}  // namespace quillmark::test
