// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QString>

namespace quillmark {

/// Makes a screen reader say a text without a move of the keyboard focus. Qt 6.8 and later
/// have an event for that. With an older Qt, the item must be in the accessibility tree as
/// a notification with `text` as its name, because screen readers read a notification when
/// it appears. UI thread only.
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
