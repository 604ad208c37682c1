// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/BoxPatch.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QPainter>
#include <QPen>

namespace quillmark {
namespace {

// The opacity of each layer of a shadow, the smallest layer first.
// Each layer extends beyond the previous one by half the blur radius.
constexpr std::array shadowSteps{0.22, 0.17, 0.1, 0.05};

qreal spread(const BoxLook& look, std::size_t step) {
  return static_cast<qreal>(step + 1) * look.shadowBlur / 2;
}

void drawShadow(QPainter& painter, const BoxLook& look, const QRectF& box) {
  for (std::size_t step = 0; step < shadowSteps.size(); ++step) {
    auto color = look.color;
    color.setAlphaF(static_cast<float>(shadowSteps.at(step)) * color.alphaF());
    const auto out = spread(look, step);
    painter.setBrush(color);
    painter.drawRoundedRect(box.adjusted(-out, -out, out, out), look.radius + out,
                            look.radius + out);
  }
}

void drawPlain(QPainter& painter, const BoxLook& look, const QRectF& box) {
  // QPainter centres the pen on the outline: inset it by half the border.
  const auto in = look.borderWidth / 2.0;
  if (look.borderWidth > 0) {
    painter.setPen(QPen(look.borderColor, look.borderWidth));
  }
  painter.setBrush(look.color);
  const auto radius = std::max(0.0, look.radius - in);
  painter.drawRoundedRect(box.adjusted(in, in, -in, -in), radius, radius);
}

}  // namespace

BoxPatch::BoxPatch(const BoxLook& look, QSize box)
    : reach(static_cast<int>(std::ceil(spread(look, shadowSteps.size() - 1)))) {
  const int corner =
      reach + static_cast<int>(std::ceil(std::max<qreal>(look.radius, look.borderWidth)));
  // Two corners and one pixel between them to stretch, or less if the box is smaller.
  const QSize whole = box.grownBy({reach, reach, reach, reach});
  size = whole.boundedTo({2 * corner + 1, 2 * corner + 1});
  corners.setLeft(std::min(corner, size.width() / 2));
  corners.setRight(std::min(corner, size.width() - corners.left()));
  corners.setTop(std::min(corner, size.height() / 2));
  corners.setBottom(std::min(corner, size.height() - corners.top()));
}

QImage drawBox(const BoxLook& look, const BoxPatch& patch) {
  QImage image(patch.size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const auto reach = patch.reach;
  const auto box = QRectF(image.rect()).adjusted(reach, reach, -reach, -reach);
  if (look.shadowBlur > 0) {
    drawShadow(painter, look, box);
  } else {
    drawPlain(painter, look, box);
  }
  return image;
}

}  // namespace quillmark
