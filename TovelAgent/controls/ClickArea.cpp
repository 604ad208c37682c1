// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ClickArea.h"

#include <QMouseEvent>

namespace quillmark {

ClickArea::ClickArea(QQuickItem* parent) : QQuickItem(parent) {
  setAcceptedMouseButtons(Qt::LeftButton);
  // A Flickable asks for this before it takes a drag over.
  setKeepMouseGrab(true);
  setKeepTouchGrab(true);
}

// Accepted, or the release would go to somebody else.
void ClickArea::mousePressEvent(QMouseEvent* event) { event->accept(); }

void ClickArea::mouseReleaseEvent(QMouseEvent* event) {
  if (contains(event->position())) {
    Q_EMIT clicked();
  }
}

// It follows the second press of two; accepted, so that this press stays here.
void ClickArea::mouseDoubleClickEvent(QMouseEvent* event) { event->accept(); }

}  // namespace quillmark
