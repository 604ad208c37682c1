// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QImage>
#include <QMargins>
#include <QSize>

namespace quillmark {

/// How a box is drawn. All lengths are device pixels.
struct BoxLook {
  QColor color;
  qreal radius = 0;  ///< at most half of the box's shorter side
  int borderWidth = 0;
  QColor borderColor;
  qreal shadowBlur = 0;  ///< above 0, the box is a shadow of this blur radius

  bool operator==(const BoxLook&) const = default;
};

/// The dimensions of the smallest image of a box that can be drawn as a nine-patch: the
/// part between its corners is stretched to any size. All lengths are device pixels.
struct BoxPatch {
  BoxPatch(const BoxLook& look, QSize box);

  QSize size;
  QMargins corners;  ///< the parts that must not be stretched
  int reach = 0;     ///< how far the image extends beyond the box on each side
};

/// The image. Any thread.
[[nodiscard]] QImage drawBox(const BoxLook& look, const BoxPatch& patch);

}  // namespace quillmark
