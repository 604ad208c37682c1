// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQuickWindow>
#include <QSGNinePatchNode>
#include <QSGTransformNode>

#include "controls/BoxPatch.h"

namespace quillmark {

/// Draws a box aligned to whole device pixels, whatever offset its parent nodes
/// add. Render thread only.
class BoxNode final : public QSGTransformNode {
 public:
  explicit BoxNode(QQuickWindow& window);

  /// `box` and `look` are in device pixels; `ratio` is the number of device
  /// pixels per scene unit.
  void show(QSize box, const BoxLook& look, qreal ratio);

  /// Aligns the box before each frame.
  void preprocess() override;

 private:
  void draw(const BoxPatch& patch);

  QQuickWindow& window_;
  QSGNinePatchNode* const patch_;  ///< owned by this node, as a child
  BoxLook look_;
  QSize textureSize_;
  qreal ratio_ = 1;
};

}  // namespace quillmark
