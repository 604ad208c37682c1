// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQuickWindow>
#include <QSGNinePatchNode>
#include <QSGTransformNode>

#include "controls/BoxPicture.h"

namespace quillmark {

/// Shows a box at whole device pixels, wherever the nodes above it move it to.
/// Render thread only.
class BoxNode final : public QSGTransformNode {
 public:
  explicit BoxNode(QQuickWindow& window);

  /// `box` and `look` are in device pixels, of which `ratio` make one unit of
  /// the scene.
  void show(QSize box, const BoxLook& look, qreal ratio);

  void preprocess() override;

 private:
  void draw(const BoxPicture& picture);

  QQuickWindow& window_;
  QSGNinePatchNode* const patch_;  ///< a child, which the nodes own
  BoxLook look_;
  QSize drawn_;
  qreal ratio_ = 1;
};

}  // namespace quillmark
