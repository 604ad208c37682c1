// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/ResizeBorder.h"

#include <QCursor>
#include <QHoverEvent>
#include <QMouseEvent>
#include <QQuickWindow>

namespace quillmark {
namespace {

constexpr Qt::Edges sides = Qt::LeftEdge | Qt::RightEdge;
constexpr Qt::Edges topAndBottom = Qt::TopEdge | Qt::BottomEdge;

bool isCorner(Qt::Edges edges) { return (edges & sides) && (edges & topAndBottom); }

Qt::CursorShape cursorFor(Qt::Edges edges) {
  if (isCorner(edges)) {
    const bool isRising = edges.testFlag(Qt::TopEdge) == edges.testFlag(Qt::RightEdge);
    return isRising ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor;
  }
  return edges & sides ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

}  // namespace

ResizeBorder::ResizeBorder(QQuickItem* parent) : QQuickItem(parent) {
  setAcceptHoverEvents(true);
  setAcceptedMouseButtons(Qt::LeftButton);
}

Qt::Edges ResizeBorder::edgesAt(const QPointF& point) const {
  if (!QQuickItem::contains(point)) {
    return {};
  }
  const auto atCorner = edgesWithin(corner_, point);
  return isCorner(atCorner) ? atCorner : edgesWithin(thickness_, point);
}

Qt::Edges ResizeBorder::edgesWithin(qreal reach, const QPointF& point) const {
  Qt::Edges edges;
  edges.setFlag(Qt::LeftEdge, point.x() < reach);
  edges.setFlag(Qt::RightEdge, point.x() >= width() - reach);
  edges.setFlag(Qt::TopEdge, point.y() < reach);
  edges.setFlag(Qt::BottomEdge, point.y() >= height() - reach);
  return edges;
}

bool ResizeBorder::contains(const QPointF& point) const { return edgesAt(point) != Qt::Edges(); }

void ResizeBorder::hoverEnterEvent(QHoverEvent* event) { hoverMoveEvent(event); }

void ResizeBorder::hoverMoveEvent(QHoverEvent* event) {
  setCursor(cursorFor(edgesAt(event->position())));
  // The items below need the hover events, too.
  event->ignore();
}

void ResizeBorder::mousePressEvent(QMouseEvent* event) {
  window()->startSystemResize(edgesAt(event->position()));
}

}  // namespace quillmark
