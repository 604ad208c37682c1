// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ScrollKeys.h"

#include <algorithm>

#include <QKeyEvent>

namespace quillmark {
namespace {

constexpr qreal lineStep = 40;
// The part of a page that stays in view, so that the reader finds the place again.
constexpr qreal pageOverlap = 40;

qreal realProperty(const QQuickItem& item, const char* property) {
  return item.property(property).toReal();
}

}  // namespace

void ScrollKeys::setTarget(QQuickItem* target) {
  if (target_) {
    target_->removeEventFilter(this);
  }
  target_ = target;
  if (target_) {
    target_->installEventFilter(this);
  }
}

bool ScrollKeys::eventFilter(QObject* watched, QEvent* event) {
  if (watched == target_ && event->type() == QEvent::MouseButtonPress) {
    target_->forceActiveFocus(Qt::MouseFocusReason);
  }
  if (watched != target_ || event->type() != QEvent::KeyPress) {
    return QObject::eventFilter(watched, event);
  }
  const auto* const press = static_cast<QKeyEvent*>(event);
  const auto modifiers = press->modifiers() & ~Qt::KeypadModifier;
  return modifiers == Qt::NoModifier && scroll(press->key());
}

bool ScrollKeys::scroll(int key) {
  switch (key) {
    case Qt::Key_Up:
      scrollLines(-1);
      return true;
    case Qt::Key_Down:
      scrollLines(1);
      return true;
    case Qt::Key_PageUp:
      scrollPages(-1);
      return true;
    case Qt::Key_PageDown:
      scrollPages(1);
      return true;
    case Qt::Key_Home:
      target_->setProperty("contentY", realProperty(*target_, "originY"));
      return true;
    case Qt::Key_End:
      scrollToEnd();
      return true;
    default:
      return false;
  }
}

void ScrollKeys::scrollLines(int count) { scrollBy(count * lineStep); }

void ScrollKeys::scrollPages(int count) {
  scrollBy(count * std::max(lineStep, target_->height() - pageOverlap));
}

void ScrollKeys::scrollBy(qreal distance) {
  const qreal top = realProperty(*target_, "originY");
  const qreal bottom =
      std::max(top, top + realProperty(*target_, "contentHeight") - target_->height());
  target_->setProperty("contentY",
                       std::clamp(realProperty(*target_, "contentY") + distance, top, bottom));
}

void ScrollKeys::scrollToEnd() {
  // A list view only estimates the height of rows that it has not created yet.
  if (target_->inherits("QQuickItemView")) {
    QMetaObject::invokeMethod(target_, "positionViewAtEnd");
  } else {
    scrollBy(realProperty(*target_, "contentHeight"));
  }
}

}  // namespace quillmark
