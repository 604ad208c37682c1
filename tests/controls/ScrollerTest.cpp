// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>
#include <ostream>
#include <utility>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

#include <gtest/gtest.h>

#include "controls/Scroller.h"
#include "main/ViewEngine.h"
#include "viewmodel/GuiTest.h"

namespace quillmark::test {
namespace {

/// A page 300 high of content 1,000 high: what there is to scroll is 700.
class ScrollerTest : public testing::Test {
 protected:
  ScrollerTest() {
    prepareForViews(engine_);
    QQmlComponent component(&engine_);
    component.setData(
        "import QtQuick\nFlickable { width: 200; height: 300; contentWidth: 200; contentHeight: "
        "1000 }",
        QUrl());
    page_.reset(qobject_cast<QQuickItem*>(component.create()));
    scroller_.setTarget(page_.get());
  }

  /// Whether the key was taken.
  bool press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    // An event that nobody takes stays unaccepted.
    event.ignore();
    return scroller_.eventFilter(page_.get(), &event);
  }

  [[nodiscard]] qreal position() const { return page_->property("contentY").toReal(); }
  void scrollTo(qreal position) { page_->setProperty("contentY", position); }

  QQmlEngine engine_;
  std::unique_ptr<QQuickItem> page_;
  Scroller scroller_;
};

struct Press {
  int key;
  qreal from;
  qreal to;
};

void PrintTo(const Press& press, std::ostream* out) {
  *out << QKeySequence(press.key).toString().toStdString() << " from " << press.from;
}

class ScrollerKeysTest : public ScrollerTest, public testing::WithParamInterface<Press> {};

TEST_P(ScrollerKeysTest, Scrolls) {
  scrollTo(GetParam().from);
  EXPECT_TRUE(press(GetParam().key));
  EXPECT_EQ(position(), GetParam().to);
}

TEST_P(ScrollerKeysTest, ScrollsFromTheKeypadToo) {
  scrollTo(GetParam().from);
  EXPECT_TRUE(press(GetParam().key, Qt::KeypadModifier));
  EXPECT_EQ(position(), GetParam().to);
}

INSTANTIATE_TEST_SUITE_P(Keys, ScrollerKeysTest,
                         testing::Values(Press{Qt::Key_Down, 0, 40}, Press{Qt::Key_Down, 690, 700},
                                         Press{Qt::Key_Down, 700, 700}, Press{Qt::Key_Up, 100, 60},
                                         Press{Qt::Key_Up, 10, 0}, Press{Qt::Key_Up, 0, 0},
                                         // A page, less what stays in view.
                                         Press{Qt::Key_PageDown, 0, 260},
                                         Press{Qt::Key_PageDown, 600, 700},
                                         Press{Qt::Key_PageUp, 500, 240},
                                         Press{Qt::Key_PageUp, 100, 0}, Press{Qt::Key_Home, 500, 0},
                                         Press{Qt::Key_End, 100, 700},
                                         Press{Qt::Key_End, 700, 700}));

TEST_F(ScrollerTest, LeavesOtherKeysToOthers) {
  for (const int key : {Qt::Key_A, Qt::Key_Tab, Qt::Key_Left, Qt::Key_Right, Qt::Key_Space,
                        Qt::Key_Return, Qt::Key_Escape}) {
    EXPECT_FALSE(press(key)) << key;
  }
  EXPECT_EQ(position(), 0);
}

TEST_F(ScrollerTest, LeavesKeysWithModifiersToOthers) {
  for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier}) {
    EXPECT_FALSE(press(Qt::Key_Down, modifier));
    EXPECT_FALSE(press(Qt::Key_End, modifier));
  }
  EXPECT_EQ(position(), 0);
}

TEST_F(ScrollerTest, LeavesReleasesToOthers) {
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_Down, Qt::NoModifier);
  EXPECT_FALSE(scroller_.eventFilter(page_.get(), &release));
  EXPECT_EQ(position(), 0);
}

TEST_F(ScrollerTest, DoesNothingWhereAllFits) {
  page_->setProperty("contentHeight", 100);
  for (const int key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Up, Qt::Key_Home}) {
    EXPECT_TRUE(press(key));
    EXPECT_EQ(position(), 0);
  }
}

TEST_F(ScrollerTest, ScrollsToAShareOfTheWay) {
  for (const auto& [share, expected] :
       {std::pair{0.0, 0.0}, {0.5, 350.0}, {1.0, 700.0}, {-0.5, 0.0}, {1.5, 700.0}}) {
    scroller_.scrollToFraction(share);
    EXPECT_EQ(position(), expected) << share;
  }
}

TEST_F(ScrollerTest, RevealsAnItemWithRoomForItsLabel) {
  auto* const content = page_->property("contentItem").value<QQuickItem*>();
  QQuickItem item(content);
  item.setSize({100, 20});
  item.setY(500);
  scroller_.reveal(&item);
  EXPECT_EQ(position(), 500 + 20 + 32 - 300);
  item.setY(100);
  scroller_.reveal(&item);
  EXPECT_EQ(position(), 100 - 32);
}

TEST_F(ScrollerTest, KeepsTheItemInViewWhenTheContentGrows) {
  auto* const content = page_->property("contentItem").value<QQuickItem*>();
  QQuickItem item(content);
  item.setSize({100, 20});
  item.setY(980);
  scroller_.reveal(&item);
  EXPECT_EQ(position(), 700);
  page_->setProperty("contentHeight", 1200);
  EXPECT_EQ(position(), 980 + 20 + 32 - 300);
}

TEST_F(ScrollerTest, LeavesItemsOutsideTheTargetAlone) {
  QQuickItem other;
  other.setY(900);
  scroller_.reveal(&other);
  EXPECT_EQ(position(), 0);
}

TEST_F(ScrollerTest, ListensToItsTargetOnly) {
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  scroller_.setTarget(nullptr);
  QCoreApplication::sendEvent(page_.get(), &down);
  EXPECT_EQ(position(), 0);
  scroller_.setTarget(page_.get());
  QCoreApplication::sendEvent(page_.get(), &down);
  EXPECT_EQ(position(), 40);
}

TEST_F(ScrollerTest, LeavesTheWindowWithItsTarget) {
  QQuickWindow window;
  window.contentItem()->forceActiveFocus();
  page_->setParentItem(window.contentItem());
  QQuickItem other(window.contentItem());
  QQuickItem item(page_->property("contentItem").value<QQuickItem*>());
  item.setSize({100, 20});
  item.setY(500);
  item.forceActiveFocus();
  ASSERT_EQ(window.activeFocusItem(), &item);
  EXPECT_EQ(position(), 500 + 20 + 32 - 300);

  other.forceActiveFocus();
  scrollTo(0);
  scroller_.setTarget(nullptr);
  item.forceActiveFocus();
  scroller_.scrollLines(1);
  scroller_.scrollPages(1);
  scroller_.scrollToFraction(1);
  EXPECT_EQ(position(), 0);
}

TEST_F(ScrollerTest, OutlivesItsTarget) {
  page_.reset();
  EXPECT_EQ(scroller_.target(), nullptr);
  scroller_.setTarget(nullptr);
}

}  // namespace
}  // namespace quillmark::test
