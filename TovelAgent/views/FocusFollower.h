// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

namespace quillmark {

/// Scrolls a Flickable so that the item in it that has the keyboard focus is in
/// view. UI thread only.
class FocusFollower : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QQuickItem* target READ target WRITE setTarget REQUIRED)

 public:
  using QObject::QObject;

  [[nodiscard]] QQuickItem* target() const { return target_; }
  void setTarget(QQuickItem* target);

 private:
  void watch(QQuickWindow* window);
  void follow() const;

  QPointer<QQuickItem> target_;
  QPointer<QQuickWindow> window_;
};

}  // namespace quillmark
