// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/AppDelegate.h"

#include <QColor>
#include <QGuiApplication>
#include <QQuickWindow>

namespace quillmark {

void AppDelegate::applicationDidFinishLaunching() const {
  const auto windows = QGuiApplication::topLevelWindows();
  auto* const first = windows.isEmpty() ? nullptr : qobject_cast<QQuickWindow*>(windows.first());
  if (first == nullptr) {
    return;
  }
  auto format = first->requestedFormat();
  format.setAlphaBufferSize(8);
  first->setFormat(format);
  first->setColor(QColor::fromRgbF(0.96F, 0.96F, 0.97F));
}

}  // namespace quillmark
