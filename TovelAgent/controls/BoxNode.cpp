// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/BoxNode.h"

#include "controls/WholePixels.h"

namespace quillmark {
namespace {

/// The scene position of `node`'s origin, given by its parent nodes.
QPointF origin(const QSGNode& node) {
  QPointF point;
  for (const auto* above = node.parent(); above != nullptr; above = above->parent()) {
    if (above->type() == QSGNode::TransformNodeType) {
      point = static_cast<const QSGTransformNode*>(above)->matrix().map(point);
    }
  }
  return point;
}

}  // namespace

BoxNode::BoxNode(QQuickWindow& window) : window_(window), patch_(window.createNinePatchNode()) {
  setFlag(UsePreprocess);
  // Always set it: with OpenGL, Qt leaves this value uninitialised.
  patch_->setDevicePixelRatio(1);
  appendChildNode(patch_);
}

void BoxNode::show(QSize box, const BoxLook& look, qreal ratio) {
  const BoxPatch patch(look, box);
  if (patch.size != textureSize_ || look != look_) {
    look_ = look;
    draw(patch);
  }
  ratio_ = ratio;
  const auto reach = patch.reach;
  patch_->setBounds(QRectF({}, box).adjusted(-reach, -reach, reach, reach));
  patch_->update();
}

void BoxNode::preprocess() {
  const auto place = origin(*this) * ratio_;
  const QPointF whole(wholePixels(place.x()), wholePixels(place.y()));
  const auto shift = (whole - place) / ratio_;
  QMatrix4x4 matrix;
  matrix.translate(static_cast<float>(shift.x()), static_cast<float>(shift.y()));
  matrix.scale(static_cast<float>(1 / ratio_));
  if (matrix != this->matrix()) {
    setMatrix(matrix);
  }
}

void BoxNode::draw(const BoxPatch& patch) {
  textureSize_ = patch.size;
  patch_->setTexture(window_.createTextureFromImage(drawBox(look_, patch)));
  const auto& corners = patch.corners;
  patch_->setPadding(corners.left(), corners.top(), corners.right(), corners.bottom());
}

}  // namespace quillmark
