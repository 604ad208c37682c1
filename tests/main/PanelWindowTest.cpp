// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "main/WindowGroup.h"

#include "main/AppDelegate.h"
#include "main/WindowTest.h"

namespace quillmark::test {
namespace {

using WindowGroupTest = WindowTest;

TEST_F(WindowGroupTest, HasNoWindowAtFirst) { EXPECT_TRUE(windows().isEmpty()); }

TEST_F(WindowGroupTest, OpensAWindowThatIsNotShownYet) {
  group().open();
  ASSERT_EQ(windows().size(), 1);
  EXPECT_FALSE(windows().first()->isVisible());
}

TEST_F(WindowGroupTest, PresentsTheExistingWindow) {
  group().open();
  auto* const opened = windows().first();
  group().present();
  EXPECT_TRUE(opened->isVisible());
  group().present();
  EXPECT_EQ(windows(), QList{opened});
}

TEST_F(WindowGroupTest, OpensAWindowToPresentIfThereIsNone) {
  group().present();
  ASSERT_EQ(windows().size(), 1);
  EXPECT_TRUE(windows().first()->isVisible());
}

TEST_F(WindowGroupTest, BringsAMinimizedWindowBack) {
  auto* const window = presented();
  window->showMinimized();
  ASSERT_TRUE(window->windowStates() & Qt::WindowMinimized);
  group().present();
  EXPECT_FALSE(window->windowStates() & Qt::WindowMinimized);
  EXPECT_EQ(windows(), QList{window});
}

TEST_F(WindowGroupTest, KeepsAMaximizedWindowMaximized) {
  auto* const window = presented();
  window->showMaximized();
  group().present();
  EXPECT_TRUE(window->windowStates() & Qt::WindowMaximized);
}

TEST_F(WindowGroupTest, DestroysAWindowThatIsClosed) {
  const QPointer<QQuickWindow> window = presented();
  const QPointer<QObject> content = itemWith(*window, "selectedTab", QStringLiteral("dashboard"));
  ASSERT_FALSE(content.isNull());
  window->close();
  EXPECT_TRUE(waitUntil([&] { return window.isNull(); }));
  EXPECT_TRUE(content.isNull());
  EXPECT_TRUE(windows().isEmpty());
}

TEST_F(WindowGroupTest, OpensAnotherAfterTheFirstIsClosed) {
  group().open();
  AppDelegate().applicationDidFinishLaunching();
  const QPointer<QQuickWindow> first = presented();
  ASSERT_EQ(first->color().rgba(), qRgb(245, 245, 247));
  auto* const content = itemWith(*first, "selectedTab", QStringLiteral("dashboard"));
  ASSERT_NE(content, nullptr);
  content->setProperty("selectedTab", QStringLiteral("alerts"));
  first->close();
  ASSERT_TRUE(waitUntil([&] { return first.isNull(); }));

  auto* const second = presented();
  EXPECT_EQ(windows(), QList{second});
  // With the toolkit's own background and new content.
  EXPECT_EQ(second->color(), QColor(Qt::white));
  EXPECT_EQ(second->requestedFormat().alphaBufferSize(), QSurfaceFormat().alphaBufferSize());
  EXPECT_NE(itemWith(*second, "selectedTab", QStringLiteral("dashboard")), nullptr);
}

TEST_F(WindowGroupTest, PresentsTheLatestOfSeveral) {
  group().open();
  group().open();
  ASSERT_EQ(windows().size(), 2);
  group().present();
  EXPECT_FALSE(windows().first()->isVisible());
  EXPECT_TRUE(windows().last()->isVisible());
}

TEST_F(WindowGroupTest, GivesEachWindowItsOwnViewModel) {
  group().open();
  group().open();
  const auto modelOf = [](const QQuickWindow& window) {
    return itemWith(window, "selectedTab", QStringLiteral("dashboard"))->property("viewModel");
  };
  EXPECT_NE(modelOf(*windows().first()).value<QObject*>(), nullptr);
  EXPECT_NE(modelOf(*windows().first()), modelOf(*windows().last()));
}

}  // namespace
}  // namespace quillmark::test
