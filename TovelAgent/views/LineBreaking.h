// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QString>

namespace quillmark {

/// How a text is to be broken into lines. UI thread only.
class LineBreaking : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON

 public:
  using QObject::QObject;

  /// Whether some word of `text` is so long that looking for places to break
  /// it would take the toolkit minutes: such a text is broken anywhere.
  Q_INVOKABLE [[nodiscard]] static bool hasEndlessWord(const QString& text);
};

}  // namespace quillmark
