// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace quillmark {

/// Where `IconProvider` serves an icon. In C++, because Qt 6.4 crashes when a
/// QML binding turns a colour into text while garbage is collected.
class IconAddress : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  /// The address of the icon `name` in `color`; empty without a name. Any thread.
  [[nodiscard]] Q_INVOKABLE static QString of(const QString& name, const QColor& color);
};

}  // namespace quillmark
