// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Pixels.h"

#include <algorithm>
#include <cstdlib>

namespace quillmark::test {
namespace {

int difference(QRgb one, QRgb other) {
  return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                   std::abs(qBlue(one) - qBlue(other))});
}

}  // namespace

int difference(const QImage& one, const QImage& other) {
  int most = one.size() == other.size() ? 0 : 255;
  for (int y = 0; most < 255 && y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      most = std::max(most, difference(one.pixel(x, y), other.pixel(x, y)));
    }
  }
  return most;
}

QRect inked(const QImage& image) {
  QRect found;
  const auto ground = image.pixel(0, 0);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (difference(image.pixel(x, y), ground) > 1) {
        found |= QRect(x, y, 1, 1);
      }
    }
  }
  return found;
}

int run(const QImage& image, QPoint from, QPoint step, const QColor& color) {
  int length = 0;
  while (image.rect().contains(from) && image.pixelColor(from) == color) {
    from += step;
    ++length;
  }
  return length;
}

}  // namespace quillmark::test
