// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

namespace quillmark {

/// Scrolls a Flickable; for lists there is `ListScroller`. Keys scroll while the target has
/// the focus, or an item inside it that does not use the key: arrows by a line, Page Up and
/// Page Down by a page, Home and End to the ends. A click on the target gives it the focus.
/// An item inside the target that gets the focus is scrolled into view and kept there when
/// the view or its content changes size. UI thread only.
class Scroller : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QQuickItem* target READ target WRITE setTarget REQUIRED)

 public:
  using QObject::QObject;

  [[nodiscard]] QQuickItem* target() const { return target_; }
  void setTarget(QQuickItem* target);

  /// Scroll by lines or pages: down if `count` is positive, never past an end.
  Q_INVOKABLE void scrollLines(int count);
  Q_INVOKABLE void scrollPages(int count);

  /// Scrolls to a fraction of the range: 0 is the top and 1 is the bottom.
  Q_INVOKABLE void scrollToFraction(qreal fraction);

  /// Scrolls until `item` is in view, and keeps it there until another item gets the
  /// focus. Items outside the target are ignored.
  Q_INVOKABLE void reveal(QQuickItem* item);

  [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

 protected:
  /// Scrolls to the item that got the focus.
  virtual void followFocus();
  /// False if the key does not scroll.
  [[nodiscard]] virtual bool handleKey(int key);
  /// What the keys do; `direction` is 1 for down and -1 for up.
  virtual void moveByLine(int direction) { scrollLines(direction); }
  virtual void moveByPage(int direction) { scrollPages(direction); }
  virtual void moveToEnd(int direction) { scrollTo(direction > 0 ? bottom() : top()); }
  [[nodiscard]] qreal position() const;
  [[nodiscard]] qreal top() const;
  void scrollTo(qreal position);

 private Q_SLOTS:
  void keepInView();

 private:
  void followFocusIn(QQuickWindow* window);
  [[nodiscard]] qreal valueOf(const char* name) const;
  [[nodiscard]] qreal bottom() const;

  QPointer<QQuickItem> target_;
  QPointer<QQuickWindow> window_;
  QPointer<QQuickItem> lastFocus_;
  QPointer<QQuickItem> revealed_;  ///< to be kept in view
};

}  // namespace quillmark
