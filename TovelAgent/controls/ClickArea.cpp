// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ClickArea.h"

#include <QMouseEvent>

namespace quillmark {

ClickArea::ClickArea(QQuickItem* parent) : QQuickItem(parent) {
  setAcceptedMouseButtons(Qt::LeftButton);
  // Keeps a Flickable from taking over the drag.
  setKeepMouseGrab(true);
  setKeepTouchGrab(true);
}

// Without this, the release would go to another item.
void ClickArea::mousePressEvent(QMouseEvent* event) { event->accept(); }

void ClickArea::mouseReleaseEvent(QMouseEvent* event) {
  if (contains(event->position())) {
    Q_EMIT clicked();
  }
}

// Sent after the second press of a double click; accepting it keeps that press here.
void ClickArea::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

}  // namespace quillmark
