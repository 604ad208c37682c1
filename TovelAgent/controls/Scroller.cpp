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
// Kept free around a revealed item, so that its label is visible as well.
constexpr qreal margin = 32;

}  // namespace

void Scroller::setTarget(QQuickItem* target) {
  if (target_) {
    target_->removeEventFilter(this);
    target_->disconnect(this);
  }
  target_ = target;
  followFocusIn(target_ ? target_->window() : nullptr);
  if (target_) {
    target_->installEventFilter(this);
    connect(target_, &QQuickItem::windowChanged, this, &Scroller::followFocusIn);
    connect(target_, &QQuickItem::heightChanged, this, &Scroller::keepInView);
    // Connected by name, because Flickable's C++ class is not public.
    connect(target_, SIGNAL(contentHeightChanged()), this, SLOT(keepInView()));
  }
}

void Scroller::followFocusIn(QQuickWindow* window) {
  if (window_) {
    window_->disconnect(this);
  }
  window_ = window;
  if (window_) {
    connect(window_, &QQuickWindow::activeFocusItemChanged, this, &Scroller::followFocus);
  }
}

void Scroller::followFocus() {
  auto* const focus = window_->activeFocusItem();
  // Not when the focus only returns, as from the window of a dialog: something else
  // may have been revealed meanwhile.
  if (focus != nullptr && focus != lastFocus_) {
    lastFocus_ = focus;
    reveal(focus);
  }
}

void Scroller::reveal(QQuickItem* item) {
  revealed_ = item;
  keepInView();
}

void Scroller::keepInView() {
  const auto* const content =
      target_ ? target_->property("contentItem").value<QQuickItem*>() : nullptr;
  if (content == nullptr || !revealed_ || !content->isAncestorOf(revealed_)) {
    return;
  }
  const auto place = revealed_->mapRectToItem(content, revealed_->boundingRect());
  const auto maxPosition = place.top() - margin;
  const auto minPosition = place.bottom() + margin - target_->height();
  // Not std::clamp(): of an item higher than the view, the top is shown.
  scrollTo(std::min(std::max(position(), minPosition), maxPosition));
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
  return modifiers == Qt::NoModifier && handleKey(press->key());
}

bool Scroller::handleKey(int key) {
  switch (key) {
    case Qt::Key_Up:
      moveByLine(-1);
      return true;
    case Qt::Key_Down:
      moveByLine(1);
      return true;
    case Qt::Key_PageUp:
      moveByPage(-1);
      return true;
    case Qt::Key_PageDown:
      moveByPage(1);
      return true;
    case Qt::Key_Home:
      moveToEnd(-1);
      return true;
    case Qt::Key_End:
      moveToEnd(1);
      return true;
    default:
      return false;
  }
}

void Scroller::scrollLines(int count) { scrollTo(position() + count * lineStep); }

void Scroller::scrollPages(int count) {
  scrollTo(position() + count * std::max(lineStep, valueOf("height") - pageOverlap));
}

void Scroller::scrollToFraction(qreal fraction) { scrollTo(std::lerp(top(), bottom(), fraction)); }

qreal Scroller::valueOf(const char* name) const {
  return target_ ? target_->property(name).toReal() : 0;
}

qreal Scroller::position() const { return valueOf("contentY"); }

qreal Scroller::top() const { return valueOf("originY"); }

qreal Scroller::bottom() const {
  return top() + std::max(0.0, valueOf("contentHeight") - valueOf("height"));
}

void Scroller::scrollTo(qreal position) {
  if (target_) {
    target_->setProperty("contentY", std::clamp(position, top(), bottom()));
  }
}

}  // namespace quillmark
