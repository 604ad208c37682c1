// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

namespace quillmark {

/// Scrolls a Flickable to keep one item in view: the item with the keyboard
/// focus, or one passed to `reveal` since. Scrolls again when the view or its
/// content changes size. UI thread only.
class FocusFollower : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QQuickItem* target READ target WRITE setTarget REQUIRED)

 public:
  using QObject::QObject;

  [[nodiscard]] QQuickItem* target() const { return target_; }
  void setTarget(QQuickItem* target);

  /// Scrolls until `item`, which must be inside the target, is in view.
  Q_INVOKABLE void reveal(QQuickItem* item);

 private Q_SLOTS:
  void keepInView() const;

 private:
  void watch(QQuickWindow* window);
  void followFocus();

  QPointer<QQuickItem> target_;
  QPointer<QQuickWindow> window_;
  QPointer<QQuickItem> item_;
};

}  // namespace quillmark
