// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QQmlEngine>
#include <QQuickItem>

namespace quillmark {

/// A box with round corners, drawn in device pixels: at every scale its corners
/// are equal, and its border has the same thickness on all sides. Qt's software
/// renderer aligns a Rectangle to whole units of the scene only, which makes its
/// corners unequal. Lengths are in scene units. UI thread only.
class Box : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QColor color MEMBER color_ NOTIFY lookChanged)
  Q_PROPERTY(qreal radius MEMBER radius_ NOTIFY lookChanged)
  Q_PROPERTY(qreal borderWidth MEMBER borderWidth_ NOTIFY lookChanged)
  Q_PROPERTY(QColor borderColor MEMBER borderColor_ NOTIFY lookChanged)
  /// The blur radius. Above 0, the box's shadow is drawn instead of the box. It
  /// extends beyond the item by twice this radius.
  Q_PROPERTY(qreal shadowBlur MEMBER shadowBlur_ NOTIFY lookChanged)

 public:
  explicit Box(QQuickItem* parent = nullptr);

 Q_SIGNALS:
  void lookChanged();

 protected:
  void itemChange(ItemChange change, const ItemChangeData& data) override;
  QSGNode* updatePaintNode(QSGNode* node, UpdatePaintNodeData* data) override;

 private:
  QColor color_ = Qt::white;
  qreal radius_ = 0;
  qreal borderWidth_ = 0;
  QColor borderColor_ = Qt::black;
  qreal shadowBlur_ = 0;
};

}  // namespace quillmark
