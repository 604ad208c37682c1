// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/PanelWindow.h"

#include "main/AppDelegate.h"
#include "main/WindowTest.h"

namespace quillmark::test {
namespace {

using PanelWindowTest = WindowTest;

TEST_F(PanelWindowTest, HasNoWindowAtFirst) { EXPECT_TRUE(windows().isEmpty()); }

TEST_F(PanelWindowTest, OpensAWindowThatIsNotShownYet) {
  panel().open();
  ASSERT_EQ(windows().size(), 1);
  EXPECT_FALSE(windows().first()->isVisible());
}

TEST_F(PanelWindowTest, PresentsTheExistingWindow) {
  panel().open();
  auto* const opened = windows().first();
  panel().present();
  EXPECT_TRUE(opened->isVisible());
  panel().present();
  EXPECT_EQ(windows(), QList{opened});
}

TEST_F(PanelWindowTest, OpensAWindowToPresentIfThereIsNone) {
  panel().present();
  ASSERT_EQ(windows().size(), 1);
  EXPECT_TRUE(windows().first()->isVisible());
}

TEST_F(PanelWindowTest, BringsAMinimizedWindowBack) {
  auto* const window = presented();
  window->showMinimized();
  ASSERT_TRUE(window->windowStates() & Qt::WindowMinimized);
  panel().present();
  EXPECT_FALSE(window->windowStates() & Qt::WindowMinimized);
  EXPECT_EQ(windows(), QList{window});
}

TEST_F(PanelWindowTest, KeepsAMaximizedWindowMaximized) {
  auto* const window = presented();
  window->showMaximized();
  panel().present();
  EXPECT_TRUE(window->windowStates() & Qt::WindowMaximized);
}

TEST_F(PanelWindowTest, DestroysAWindowThatIsClosed) {
  const QPointer<QQuickWindow> window = presented();
  const QPointer<QObject> content = itemWith(*window, "selectedTab", QStringLiteral("dashboard"));
  ASSERT_FALSE(content.isNull());
  window->close();
  EXPECT_TRUE(waitUntil([&] { return window.isNull(); }));
  EXPECT_TRUE(content.isNull());
  EXPECT_TRUE(windows().isEmpty());
}

TEST_F(PanelWindowTest, DestroysItsWindowWhenTheProgramQuits) {
  const QPointer<QQuickWindow> window = presented();
  QMetaObject::invokeMethod(qGuiApp, &QCoreApplication::quit, Qt::QueuedConnection);
  QCoreApplication::exec();
  EXPECT_TRUE(window.isNull());
}

TEST_F(PanelWindowTest, OpensAnotherAfterTheFirstIsClosed) {
  panel().open();
  AppDelegate().applicationDidFinishLaunching();
  const QPointer<QQuickWindow> first = presented();
  ASSERT_EQ(first->color().rgba(), qRgb(245, 245, 247));
  auto* const content = itemWith(*first, "selectedTab", QStringLiteral("dashboard"));
  ASSERT_NE(content, nullptr);
  content->setProperty("selectedTab", QStringLiteral("alerts"));
  const auto firstModel = content->property("viewModel");
  first->close();
  ASSERT_TRUE(waitUntil([&] { return first.isNull(); }));

  auto* const second = presented();
  EXPECT_EQ(windows(), QList{second});
  // With the toolkit's own background, new content and a view model of its own.
  EXPECT_EQ(second->color(), QColor(Qt::white));
  EXPECT_EQ(second->requestedFormat().alphaBufferSize(), QSurfaceFormat().alphaBufferSize());
  auto* const secondContent = itemWith(*second, "selectedTab", QStringLiteral("dashboard"));
  ASSERT_NE(secondContent, nullptr);
  // The first view model still polls.
  EXPECT_NE(secondContent->property("viewModel"), firstModel);
}

}  // namespace
}  // namespace quillmark::test
