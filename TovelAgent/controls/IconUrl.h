// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace quillmark {

/// Builds the URL under which `IconProvider` serves an icon. In C++, because Qt
/// 6.4 crashes when a QML binding converts a colour to text during garbage
/// collection.
class IconUrl : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  /// The URL of the icon `name` in `color`. Any thread.
  [[nodiscard]] Q_INVOKABLE static QString of(const QString& name, const QColor& color);
};

}  // namespace quillmark
