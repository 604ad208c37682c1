// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/WindowTest.h"

#include <algorithm>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QTest>
#include <QTimer>

#include "main/Renderer.h"
#include "main/ViewEngine.h"

namespace quillmark::test {
namespace {

template <class Accept>
QQuickItem* firstIn(QQuickItem* item, Accept accept) {
  if (accept(item)) {
    return item;
  }
  for (auto* const child : item->childItems()) {
    if (auto* const found = firstIn(child, accept)) {
      return found;
    }
  }
  return nullptr;
}

/// Runs once, before the first window of any test.
class RendererChoice final : public testing::Environment {
 public:
  void SetUp() override { chooseRenderer(); }
};

[[maybe_unused]] const auto* const rendererChoice =
    testing::AddGlobalTestEnvironment(new RendererChoice);

}  // namespace

WindowTest::WindowTest() {
  prepareForViews(engine_);
  panel_ = std::make_unique<PanelWindow>(engine_);
}

WindowTest::~WindowTest() {
  panel_.reset();
  // Polling continues until the process ends and would affect the next test.
  qDeleteAll(QCoreApplication::instance()->findChildren<QTimer*>());
  EXPECT_TRUE(waitUntil([] { return windows().isEmpty(); }));
}

QList<QQuickWindow*> WindowTest::windows() {
  QList<QQuickWindow*> found;
  for (auto* const window : QGuiApplication::topLevelWindows()) {
    if (auto* const quickWindow = qobject_cast<QQuickWindow*>(window)) {
      found.append(quickWindow);
    }
  }
  return found;
}

QQuickWindow* WindowTest::presented() {
  panel_->present();
  auto* const window = windows().last();
  EXPECT_TRUE(QTest::qWaitForWindowActive(window));
  return window;
}

QQuickItem* WindowTest::itemWith(const QQuickWindow& window, const char* property,
                                 const QString& value) {
  return firstIn(window.contentItem(), [&](const QQuickItem* item) {
    return item->property(property).toString() == value;
  });
}

void WindowTest::click(QQuickItem* item) {
  const auto middle = item->mapToScene(QPointF(item->width() / 2, item->height() / 2));
  QTest::mouseClick(item->window(), Qt::LeftButton, Qt::NoModifier, middle.toPoint());
}

}  // namespace quillmark::test
