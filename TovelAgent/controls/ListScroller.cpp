// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/ListScroller.h"

#include <algorithm>

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace quillmark {
namespace {

// ListView.Contain: scrolls no further than necessary.
constexpr int contain = 4;

// Positions are rounded to device pixels, so an edge may be off by this much.
constexpr qreal edgeTolerance = 1;

bool isMenuKey(const QKeyEvent& press) {
  return press.key() == Qt::Key_Menu ||
         (press.key() == Qt::Key_F10 && press.modifiers() == Qt::ShiftModifier);
}

}  // namespace

bool ListScroller::eventFilter(QObject* watched, QEvent* event) {
  if (watched == target() && event->type() == QEvent::MouseButtonPress) {
    moveToRowAt(static_cast<QMouseEvent*>(event)->position().y());
  }
  if (watched == target() && event->type() == QEvent::KeyPress) {
    const auto* const press = static_cast<QKeyEvent*>(event);
    if (press->matches(QKeySequence::Copy)) {
      copy();
      return true;
    }
    if (isMenuKey(*press)) {
      Q_EMIT menuRequested();
      return true;
    }
  }
  return Scroller::eventFilter(watched, event);
}

// Does nothing: after a poll another row may get the focus, and the view must not scroll then.
// When a key moves the reading position, `moveTo` scrolls the view.
void ListScroller::followFocus() {}

bool ListScroller::handleKey(int key) {
  const bool isHandled = Scroller::handleKey(key);
  if (isHandled) {
    Q_EMIT moved(false);
  }
  return isHandled;
}

bool ListScroller::moveToRowAt(qreal y) {
  Q_EMIT moved(true);
  const int index = rowAt(y);
  if (index < 0) {
    return false;
  }
  const qreal before = position();
  target()->setProperty("currentIndex", index);
  // Undoes what ListView does: it scrolls a row that is cut off into view.
  scrollTo(before);
  return true;
}

void ListScroller::copy() {
  if (const auto* const item = row(currentIndex())) {
    QGuiApplication::clipboard()->setText(item->property("label").toString());
    Q_EMIT copied();
  }
}

int ListScroller::currentIndex() const { return target()->property("currentIndex").toInt(); }

int ListScroller::lastIndex() const { return target()->property("count").toInt() - 1; }

/// Null if ListView has not created it: if it is neither in view nor the current one.
QQuickItem* ListScroller::row(int index) const {
  QQuickItem* item = nullptr;
  QMetaObject::invokeMethod(target(), "itemAtIndex", Q_RETURN_ARG(QQuickItem*, item),
                            Q_ARG(int, index));
  return item;
}

/// In coordinates of the list; empty if there is no item.
QRectF ListScroller::placeOf(int index) const {
  const auto* const item = row(index);
  return item != nullptr ? item->mapRectToItem(target(), item->boundingRect()) : QRectF();
}

bool ListScroller::isHigherThanView(int index) const {
  return placeOf(index).height() > target()->height();
}

int ListScroller::rowAt(qreal y) const {
  int index = -1;
  QMetaObject::invokeMethod(target(), "indexAt", Q_RETURN_ARG(int, index), Q_ARG(qreal, 1),
                            Q_ARG(qreal, position() + y));
  return index;
}

/// The first row that begins in the view, or the only one in it.
int ListScroller::firstInView() const {
  const int index = rowAt(1);
  const auto place = placeOf(index);
  return place.top() < -edgeTolerance && place.bottom() < target()->height() - edgeTolerance
             ? index + 1
             : index;
}

void ListScroller::moveTo(int index) {
  const int bounded = std::clamp(index, 0, std::max(0, lastIndex()));
  target()->setProperty("currentIndex", bounded);
  QMetaObject::invokeMethod(target(), "positionViewAtIndex", Q_ARG(int, bounded),
                            Q_ARG(int, contain));
}

void ListScroller::moveByLine(int direction) {
  const auto place = placeOf(currentIndex());
  const auto height = target()->height();
  const bool isInView = place.bottom() > 0 && place.top() < height;
  if (!isInView) {
    // The user has scrolled the current row out of view: continue with the rows in view.
    moveTo(direction > 0 ? firstInView() : rowAt(height - 1));
  } else if (isHigherThanView(currentIndex()) &&
             (direction > 0 ? place.bottom() > height + edgeTolerance
                            : place.top() < -edgeTolerance)) {
    scrollLines(direction);
  } else {
    moveTo(currentIndex() + direction);
  }
}

void ListScroller::moveByPage(int direction) {
  const qreal before = position();
  scrollPages(direction);
  if (position() == before) {
    moveToEnd(direction);
    return;
  }
  const int reached = firstInView();
  const bool isFurther = direction > 0 ? reached > currentIndex() : reached < currentIndex();
  if (isFurther) {
    moveTo(reached);
  } else if (!isHigherThanView(currentIndex())) {
    // Every key press moves the position, except inside a row that is higher than the view.
    moveTo(currentIndex() + direction);
  }
}

void ListScroller::moveToEnd(int direction) {
  moveTo(direction > 0 ? lastIndex() : 0);
  if (direction > 0) {
    // ListView only estimates the height of rows that it has not created yet.
    QMetaObject::invokeMethod(target(), "positionViewAtEnd");
  } else {
    scrollTo(top());
  }
}

}  // namespace quillmark
