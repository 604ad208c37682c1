// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Scroller.h"

#include <algorithm>
#include <cmath>

#include <QKeyEvent>

namespace quillmark {
namespace {

constexpr qreal lineStep = 40;
// The part of a page that stays in view, so that the reader finds the place again.
constexpr qreal pageOverlap = 40;
// The distance between the item and the edge, so that its label is visible as well.
constexpr qreal margin = 32;

}  // namespace

void Scroller::setTarget(QQuickItem* target) {
  if (target_) {
    target_->removeEventFilter(this);
    target_->disconnect(this);
  }
  target_ = target;
  if (target_) {
    target_->installEventFilter(this);
    connect(target_, &QQuickItem::windowChanged, this, &Scroller::watch);
    connect(target_, &QQuickItem::heightChanged, this, &Scroller::keepInView);
    // Connected by name, because Flickable's C++ class is not public.
    connect(target_, SIGNAL(contentHeightChanged()), this, SLOT(keepInView()));
    watch(target_->window());
  }
}

void Scroller::watch(QQuickWindow* window) {
  if (window_) {
    window_->disconnect(this);
  }
  window_ = window;
  if (window_) {
    connect(window_, &QQuickWindow::activeFocusItemChanged, this, &Scroller::followFocus);
  }
}

void Scroller::followFocus() { reveal(window_->activeFocusItem()); }

void Scroller::reveal(QQuickItem* item) {
  item_ = item;
  keepInView();
}

void Scroller::keepInView() {
  const auto* const content = target_->property("contentItem").value<QQuickItem*>();
  if (content == nullptr || !item_ || !content->isAncestorOf(item_)) {
    return;
  }
  const auto place = item_->mapRectToItem(content, item_->boundingRect());
  const auto lowest = place.top() - margin;
  const auto highest = place.bottom() + margin - target_->height();
  scrollTo(std::min(std::max(position(), highest), lowest));
}

bool Scroller::eventFilter(QObject* watched, QEvent* event) {
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

bool Scroller::scroll(int key) {
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
      scrollTo(top());
      return true;
    case Qt::Key_End:
      scrollToEnd();
      return true;
    default:
      return false;
  }
}

void Scroller::scrollLines(int count) { scrollTo(position() + count * lineStep); }

void Scroller::scrollPages(int count) {
  scrollTo(position() + count * std::max(lineStep, target_->height() - pageOverlap));
}

void Scroller::scrollToShare(qreal share) { scrollTo(std::lerp(top(), bottom(), share)); }

void Scroller::scrollToEnd() {
  // A list view only estimates the height of rows that it has not created yet.
  if (target_->inherits("QQuickItemView")) {
    QMetaObject::invokeMethod(target_, "positionViewAtEnd");
  } else {
    scrollTo(bottom());
  }
}

qreal Scroller::position() const { return target_->property("contentY").toReal(); }

qreal Scroller::top() const { return target_->property("originY").toReal(); }

qreal Scroller::bottom() const {
  const auto height = target_->property("contentHeight").toReal();
  return top() + std::max(0.0, height - target_->height());
}

void Scroller::scrollTo(qreal position) {
  target_->setProperty("contentY", std::clamp(position, top(), bottom()));
}

}  // namespace quillmark
