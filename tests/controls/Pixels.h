// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QImage>

namespace quillmark::test {

/// The largest difference between two pixels at the same place, 0 to 255; 255 for
/// pictures of unequal size.
[[nodiscard]] int difference(const QImage& one, const QImage& other);

/// The bounds of what differs from the colour in the top left corner. Ignores the
/// faintest shade, which an item may leave behind when it moves.
[[nodiscard]] QRect inked(const QImage& image);

/// How many pixels of the colour there are from one point on, in one direction.
[[nodiscard]] int run(const QImage& image, QPoint from, QPoint step, const QColor& color);

}  // namespace quillmark::test
