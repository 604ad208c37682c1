// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <chrono>
#include <mutex>

#include <QGuiApplication>
#include <QTest>

#include <gtest/gtest.h>

#include "support/Patience.h"
#include "viewmodel/GuiTest.h"

namespace quillmark::test {
namespace {

std::mutex keeperMutex;
KeptWarnings* keeper = nullptr;

void failOnWarning(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  // The platform without a display cannot put one window above another.
  const bool isOfPlatform = text == QLatin1String("This plugin does not support raise()");
  if (type == QtDebugMsg || type == QtInfoMsg || isOfPlatform) {
    return;
  }
  const std::lock_guard lock(keeperMutex);
  if (keeper != nullptr) {
    keeper->keep(text);
    return;
  }
  ADD_FAILURE_AT(context.file != nullptr ? context.file : "", context.line)
      << "warning: " << qUtf8Printable(text);
}

}  // namespace

KeptWarnings::KeptWarnings() {
  const std::lock_guard lock(keeperMutex);
  keeper = this;
}

KeptWarnings::~KeptWarnings() {
  const std::lock_guard lock(keeperMutex);
  keeper = nullptr;
}

bool waitUntil(const std::function<bool()>& condition) {
  return QTest::qWaitFor(condition,
                         static_cast<int>(std::chrono::milliseconds(patience()).count()));
}

}  // namespace quillmark::test

int main(int argc, char* argv[]) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" QUILLMARK_SCREENS);
  const QGuiApplication application(argc, argv);
  qInstallMessageHandler(quillmark::test::failOnWarning);
  return RUN_ALL_TESTS();
}
