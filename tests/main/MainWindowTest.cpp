// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QSignalSpy>
#include <QTest>

#include "main/WindowTest.h"

namespace quillmark::test {
namespace {

class MainWindowTest : public WindowTest {
 protected:
  static QQuickItem* glyph(const QQuickWindow& window, const char* label) {
    return itemWith(window, "label", QLatin1String(label));
  }
};

TEST_F(MainWindowTest, HasTheTitleAndNoTitleBar) {
  const auto* const window = presented();
  EXPECT_EQ(window->title().toStdString(), "Quillmark Agent");
  EXPECT_TRUE(window->flags() & Qt::FramelessWindowHint);
}

TEST_F(MainWindowTest, IsIdentifiedAsMain) { EXPECT_EQ(presented()->objectName(), "main"); }

TEST_F(MainWindowTest, IsNeverSmallerThanItsContentNeeds) {
  const auto* const window = presented();
  EXPECT_EQ(window->minimumSize(), QSize(1000, 700));
  EXPECT_GE(window->width(), 1000);
  EXPECT_GE(window->height(), 700);
}

TEST_F(MainWindowTest, MayGrowWithoutLimit) {
  constexpr int unlimited = (1 << 24) - 1;  // the toolkit's value for no limit
  EXPECT_EQ(presented()->maximumSize(), QSize(unlimited, unlimited));
}

TEST_F(MainWindowTest, IsFilledByItsContent) {
  auto* const window = presented();
  const auto* const content = itemWith(*window, "selectedTab", QStringLiteral("dashboard"));
  ASSERT_NE(content, nullptr);
  window->resize(1300, 900);
  EXPECT_TRUE(waitUntil(
      [&] { return content->mapRectToScene(content->boundingRect()) == QRectF(0, 0, 1300, 900); }));
}

TEST_F(MainWindowTest, ClosesAtCtrlW) {
  const QPointer<QQuickWindow> window = presented();
  QTest::keyClick(window, Qt::Key_W, Qt::ControlModifier);
  EXPECT_TRUE(waitUntil([&] { return window.isNull(); }));
}

TEST_F(MainWindowTest, QuitsAtCtrlQ) {
  const QSignalSpy quit(&engine_, &QQmlEngine::quit);
  QTest::keyClick(presented(), Qt::Key_Q, Qt::ControlModifier);
  EXPECT_EQ(quit.count(), 1);
}

TEST_F(MainWindowTest, ClosesAtItsGlyph) {
  const QPointer<QQuickWindow> window = presented();
  click(glyph(*window, "Close"));
  EXPECT_TRUE(waitUntil([&] { return window.isNull(); }));
}

TEST_F(MainWindowTest, MinimizesAtItsGlyph) {
  auto* const window = presented();
  click(glyph(*window, "Minimize"));
  EXPECT_TRUE(window->windowStates() & Qt::WindowMinimized);
}

TEST_F(MainWindowTest, MaximizesAndRestoresAtItsGlyph) {
  auto* const window = presented();
  click(glyph(*window, "Maximize"));
  EXPECT_TRUE(window->windowStates() & Qt::WindowMaximized);
  EXPECT_EQ(glyph(*window, "Maximize"), nullptr);
  click(glyph(*window, "Restore"));
  EXPECT_FALSE(window->windowStates() & Qt::WindowMaximized);
  EXPECT_NE(glyph(*window, "Maximize"), nullptr);
}

TEST_F(MainWindowTest, MaximizesAtADoubleClickOnTheHeader) {
  auto* const window = presented();
  const QPoint inHeader(500, 30);
  QTest::mouseClick(window, Qt::LeftButton, Qt::NoModifier, inHeader);
  EXPECT_FALSE(window->windowStates() & Qt::WindowMaximized);
  QTest::mouseDClick(window, Qt::LeftButton, Qt::NoModifier, inHeader);
  EXPECT_TRUE(window->windowStates() & Qt::WindowMaximized);
}

TEST_F(MainWindowTest, KeepsTheFocusAtAClickOnAGlyph) {
  auto* const window = presented();
  auto* const tab = glyph(*window, "Alerts");
  ASSERT_NE(tab, nullptr);
  tab->forceActiveFocus(Qt::TabFocusReason);
  for (const auto* const label : {"Maximize", "Restore", "Minimize"}) {
    click(glyph(*window, label));
    EXPECT_EQ(window->activeFocusItem(), tab) << label;
  }
}

// The glyphs have no room of their own in the header's layout.
TEST_F(MainWindowTest, HasItsGlyphsInTheTopPaddingOfTheHeader) {
  const auto* const window = presented();
  for (const auto* const label : {"Minimize", "Maximize", "Close"}) {
    const auto* const item = glyph(*window, label);
    ASSERT_NE(item, nullptr) << label;
    const auto box = item->mapRectToScene(item->boundingRect());
    EXPECT_GE(box.top(), 0) << label;
    EXPECT_LE(box.bottom(), 20) << label;
    EXPECT_GT(box.left(), window->width() - 120) << label;
  }
}

// The keyboard reaches the tabs first, then what is in the tab, then the glyphs.
TEST_F(MainWindowTest, IsCompletelyReachedByTheKeyboard) {
  auto* const window = presented();
  QStringList reached;
  constexpr int stops = 2 + 5 + 2 + 3;  // badges, tabs, the dashboard's cards, glyphs
  for (int i = 0; i < stops; ++i) {
    QTest::keyClick(window, Qt::Key_Tab);
    ASSERT_NE(window->activeFocusItem(), nullptr);
    reached.append(window->activeFocusItem()->property("label").toString());
  }
  for (const auto* const label :
       {"Dashboard", "Network", "Inventory", "Alerts", "Settings", "Minimize", "Close"}) {
    EXPECT_TRUE(reached.contains(QLatin1String(label)))
        << label << " in " << reached.join(QLatin1Char(' ')).toStdString();
  }
}

}  // namespace
}  // namespace quillmark::test
