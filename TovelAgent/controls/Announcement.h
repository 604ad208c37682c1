// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QString>

namespace quillmark {

/// A text that a screen reader says without a move of the keyboard focus. Before Qt 6.8,
/// which has an event for that, the item itself must be in the accessibility tree, as a
/// notification with `text` as its name: screen readers read a notification when it
/// appears. UI thread only.
class Announcement : public QQuickItem {
  Q_OBJECT
  QML_ELEMENT
  Q_PROPERTY(QString text READ text NOTIFY textChanged)

 public:
  explicit Announcement(QQuickItem* parent = nullptr) : QQuickItem(parent) {}

  /// The text that was announced last; always empty from Qt 6.8 on.
  [[nodiscard]] QString text() const { return text_; }

  /// Has no effect without assistive technology. An empty text is not announced.
  Q_INVOKABLE void announce(const QString& text);

 Q_SIGNALS:
  void textChanged();

 private:
  QString text_;
};

}  // namespace quillmark
