// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQmlEngine>
#include <QQuickItem>

namespace quillmark {

/// Fills a window; dragging its edges or corners resizes the window. Pointer
/// events further inside go to the items below. UI thread only.
class ResizeBorder : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  /// How far an edge extends inwards, in scene units.
  Q_PROPERTY(qreal thickness MEMBER thickness_ REQUIRED)
  /// The side of the square at each corner.
  Q_PROPERTY(qreal corner MEMBER corner_ REQUIRED)

 public:
  explicit ResizeBorder(QQuickItem* parent = nullptr);

  /// The edges that a drag from `point` moves, if any.
  [[nodiscard]] Qt::Edges edgesAt(const QPointF& point) const;

  [[nodiscard]] bool contains(const QPointF& point) const override;

 protected:
  void hoverEnterEvent(QHoverEvent* event) override;
  void hoverMoveEvent(QHoverEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  [[nodiscard]] Qt::Edges edgesWithin(qreal reach, const QPointF& point) const;

  qreal thickness_ = 0;
  qreal corner_ = 0;
};

}  // namespace quillmark
