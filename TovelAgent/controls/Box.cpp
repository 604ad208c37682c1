// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Box.h"

#include <algorithm>

#include <QQuickWindow>

#include "controls/BoxNode.h"
#include "controls/WholePixels.h"

namespace quillmark {
namespace {

int pixels(qreal length, qreal ratio) {
  return length > 0 ? std::max(1, wholePixels(length * ratio)) : 0;
}

}  // namespace

Box::Box(QQuickItem* parent) : QQuickItem(parent) {
  setFlag(ItemHasContents);
  connect(this, &Box::lookChanged, this, &QQuickItem::update);
}

void Box::itemChange(ItemChange change, const ItemChangeData& data) {
  if (change == ItemDevicePixelRatioHasChanged) {
    update();
  }
  QQuickItem::itemChange(change, data);
}

QSGNode* Box::updatePaintNode(QSGNode* node, UpdatePaintNodeData* /*data*/) {
  const auto ratio = window()->effectiveDevicePixelRatio();
  const QSize size(pixels(width(), ratio), pixels(height(), ratio));
  if (size.isEmpty()) {
    delete node;
    return nullptr;
  }
  const BoxLook look{
      .color = color_,
      .radius = std::min(radius_ * ratio, std::min(size.width(), size.height()) / 2.0),
      .borderWidth = pixels(borderWidth_, ratio),
      .borderColor = borderColor_,
      .shadowBlur = shadowBlur_ * ratio,
  };
  auto* const box = node != nullptr ? static_cast<BoxNode*>(node) : new BoxNode(*window());
  box->show(size, look, ratio);
  return box;
}

}  // namespace quillmark
