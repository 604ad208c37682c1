// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>

namespace quillmark {

/// Lets the keyboard scroll a Flickable or list that has the focus: arrows by
/// a step, Page Up and Page Down by a page, Home and End to the ends. A click
/// on the target gives it the focus. UI thread only.
class ScrollKeys : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QQuickItem* target READ target WRITE setTarget REQUIRED)

 public:
  using QObject::QObject;

  [[nodiscard]] QQuickItem* target() const { return target_; }
  void setTarget(QQuickItem* target);

  /// Scroll by steps or pages: down if `count` is positive, never past an end.
  Q_INVOKABLE void scrollLines(int count);
  Q_INVOKABLE void scrollPages(int count);

  [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  [[nodiscard]] bool scroll(int key);
  void scrollBy(qreal distance);
  void scrollToEnd();

  QPointer<QQuickItem> target_;
};

}  // namespace quillmark
