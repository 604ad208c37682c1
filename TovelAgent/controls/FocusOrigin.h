// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QQuickItem>

namespace quillmark {

/// Whether the target got the keyboard focus from the pointer. After a click the
/// user knows where the focus is; a ring would only distract. UI thread only.
class FocusOrigin : public QObject {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QQuickItem* target READ target WRITE setTarget REQUIRED)
  Q_PROPERTY(bool fromPointer READ fromPointer WRITE setFromPointer NOTIFY fromPointerChanged)

 public:
  using QObject::QObject;

  [[nodiscard]] QQuickItem* target() const { return target_; }
  void setTarget(QQuickItem* target);

  [[nodiscard]] bool fromPointer() const { return fromPointer_; }
  /// Call when Qt's reason does not tell the origin, as when a list moves the focus to a row.
  void setFromPointer(bool fromPointer);

  [[nodiscard]] bool eventFilter(QObject* watched, QEvent* event) override;

 Q_SIGNALS:
  void fromPointerChanged();

 private:
  QPointer<QQuickItem> target_;
  bool fromPointer_ = false;
};

}  // namespace quillmark
