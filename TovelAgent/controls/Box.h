// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QQmlEngine>
#include <QQuickItem>

namespace quillmark {

/// A box with round corners, drawn in the display's own pixels: at every scale
/// its corners are alike, and so are the lines of its border. Qt's software
/// renderer knows whole units of the scene alone and draws them uneven. UI
/// thread only.
class Box : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QColor color MEMBER color_ NOTIFY lookChanged)
  Q_PROPERTY(qreal radius MEMBER radius_ NOTIFY lookChanged)
  Q_PROPERTY(qreal borderWidth MEMBER borderWidth_ NOTIFY lookChanged)
  Q_PROPERTY(QColor borderColor MEMBER borderColor_ NOTIFY lookChanged)
  /// Above 0 the shadow of such a box is drawn instead, blurred by this radius.
  /// It reaches beyond the item by twice as much.
  Q_PROPERTY(qreal softness MEMBER softness_ NOTIFY lookChanged)

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
  qreal softness_ = 0;
};

}  // namespace quillmark
