// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/IconProvider.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

namespace quillmark {

QImage IconProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
  const auto name = id.section(QLatin1Char('#'), 0, 0);
  const auto colorName = id.mid(name.size());

  QSvgRenderer drawing(QStringLiteral(":/icons/%1.svg").arg(name));
  if (!drawing.isValid()) {
    return {};
  }
  QImage image(requestedSize.isEmpty() ? drawing.defaultSize() : requestedSize,
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  drawing.render(&painter);
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(image.rect(), QColor(colorName));
  if (size != nullptr) {
    *size = image.size();
  }
  return image;
}

}  // namespace quillmark
