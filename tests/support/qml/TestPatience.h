// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <chrono>

#include <QObject>
#include <QQmlEngine>

#include "support/Patience.h"

namespace quillmark::test {

/// How long QML tests wait for an expected event.
class TestPatience : public QObject {
  Q_OBJECT
  QML_ELEMENT
  QML_SINGLETON
  Q_PROPERTY(int milliseconds READ milliseconds CONSTANT)

 public:
  using QObject::QObject;

  [[nodiscard]] static int milliseconds() {
    return static_cast<int>(std::chrono::milliseconds(patience()).count());
  }
};

}  // namespace quillmark::test
