// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QQmlEngine>
#include <QtGlobal>

namespace quillmark {

/// What screen readers can do with this version of Qt. UI thread only.
class ScreenReader : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(bool readsFieldTexts READ readsFieldTexts CONSTANT)

 public:
  using QObject::QObject;

  /// Whether they read the text of a field that gets the focus. Orca 43 does not, because
  /// Qt 6.4 gives it no text attributes; Orca 48 with Qt 6.8 does.
  [[nodiscard]] static constexpr bool readsFieldTexts() {
    return QT_VERSION >= QT_VERSION_CHECK(6, 8, 0);
  }
};

}  // namespace quillmark
