// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/AppDelegate.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <QRasterWindow>

#include <gtest/gtest.h>

namespace quillmark::test {
namespace {

bool isRestyled(const QQuickWindow& window) {
  return window.color().rgba() == qRgb(245, 245, 247) &&
         window.requestedFormat().alphaBufferSize() == 8;
}

/// As the toolkit creates it.
bool isUntouched(const QQuickWindow& window) {
  return window.color() == QColor(Qt::white) && !window.requestedFormat().hasAlpha();
}

TEST(AppDelegate, GivesTheFirstWindowItsBackground) {
  const QQuickWindow window;
  ASSERT_TRUE(isUntouched(window));
  AppDelegate().applicationDidFinishLaunching();
  EXPECT_TRUE(isRestyled(window)) << qUtf8Printable(window.color().name(QColor::HexArgb));
}

TEST(AppDelegate, DoesNotChangeOtherWindows) {
  const QQuickWindow first;
  const QQuickWindow second;
  AppDelegate().applicationDidFinishLaunching();
  EXPECT_TRUE(isRestyled(first));
  EXPECT_TRUE(isUntouched(second));
}

TEST(AppDelegate, DoesNotChangeLaterWindows) {
  const QQuickWindow first;
  AppDelegate().applicationDidFinishLaunching();
  const QQuickWindow later;
  EXPECT_TRUE(isUntouched(later));
}

TEST(AppDelegate, DoesNothingWithoutAWindow) {
  ASSERT_TRUE(QGuiApplication::topLevelWindows().isEmpty());
  AppDelegate().applicationDidFinishLaunching();
  EXPECT_TRUE(QGuiApplication::topLevelWindows().isEmpty());
  const QQuickWindow later;
  EXPECT_TRUE(isUntouched(later));
}

// Only the very first window counts, not the first one of the right type.
TEST(AppDelegate, ChecksOnlyTheFirstWindow) {
  const QRasterWindow other;
  const QQuickWindow second;
  AppDelegate().applicationDidFinishLaunching();
  EXPECT_TRUE(isUntouched(second));
}

TEST(AppDelegate, KeepsTheRestOfTheFormat) {
  QQuickWindow window;
  auto format = window.requestedFormat();
  format.setStencilBufferSize(8);
  format.setSamples(4);
  window.setFormat(format);
  AppDelegate().applicationDidFinishLaunching();
  format.setAlphaBufferSize(8);
  EXPECT_EQ(window.requestedFormat(), format);
}

}  // namespace
}  // namespace quillmark::test
