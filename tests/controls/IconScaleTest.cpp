// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QScreen>

#include <gtest/gtest.h>

#include "controls/IconProvider.h"
#include "main/ViewEngine.h"
#include "viewmodel/GuiTest.h"

namespace quillmark::test {
namespace {

/// Records the sizes that the views request.
class RecordingProvider final : public QQuickImageProvider {
 public:
  explicit RecordingProvider(QList<QSize>& sizes) : QQuickImageProvider(Image), sizes_(sizes) {}

  QImage requestImage(const QString& id, QSize* size, const QSize& requestedSize) override {
    sizes_.append(requestedSize);
    return icons_.requestImage(id, size, requestedSize);
  }

 private:
  IconProvider icons_;
  QList<QSize>& sizes_;
};

// Run at several scale factors of the display.
TEST(SymbolIcon, IsDrawnInThePixelsOfTheDisplay) {
  QList<QSize> sizes;
  QQmlEngine engine;
  prepareForViews(engine);
  engine.addImageProvider(QStringLiteral("icon"), new RecordingProvider(sizes));
  QQmlComponent component(&engine);
  component.setData(R"(
      import QtQuick.Window
      import Quillmark.Controls
      Window {
        width: 100
        height: 100
        visible: true
        property alias side: icon.width
        property alias status: icon.status
        SymbolIcon { id: icon; name: "stop.fill"; size: 40; color: "#0B5FD9" }
      })",
                    QUrl());
  const std::unique_ptr<QObject> root(component.create());
  auto* const window = qobject_cast<QQuickWindow*>(root.get());
  ASSERT_NE(window, nullptr) << component.errorString().toStdString();
  ASSERT_TRUE(waitUntil([&] { return window->isExposed(); }));

  const qreal scale = window->devicePixelRatio();
  EXPECT_EQ(scale, qEnvironmentVariable("QT_SCALE_FACTOR", QStringLiteral("1")).toDouble());
  const int pixels = qRound(window->property("side").toDouble() * scale);
  ASSERT_FALSE(sizes.isEmpty());
  EXPECT_EQ(sizes.last(), QSize(pixels, pixels));
  EXPECT_EQ(window->grabWindow().pixelColor(pixels / 2, pixels / 2), QColor(0x0B, 0x5F, 0xD9));
}

}  // namespace
}  // namespace quillmark::test
