// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include <gtest/gtest.h>

#include "controls/ScrollKeys.h"
#include "main/ViewEngine.h"
#include "viewmodel/GuiTest.h"

namespace quillmark::test {
namespace {

/// A page 300 high of content 1,000 high: what there is to scroll is 700.
class ScrollKeysTest : public testing::Test {
 protected:
  ScrollKeysTest() {
    prepareForViews(engine_);
    QQmlComponent component(&engine_);
    component.setData(
        "import QtQuick\nFlickable { width: 200; height: 300; contentWidth: 200; contentHeight: "
        "1000 }",
        QUrl());
    page_.reset(qobject_cast<QQuickItem*>(component.create()));
    keys_.setTarget(page_.get());
  }

  /// Whether the key was taken.
  bool press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent event(QEvent::KeyPress, key, modifiers);
    // An event that nobody takes stays unaccepted.
    event.ignore();
    return keys_.eventFilter(page_.get(), &event);
  }

  [[nodiscard]] qreal position() const { return page_->property("contentY").toReal(); }
  void scrollTo(qreal position) { page_->setProperty("contentY", position); }

  QQmlEngine engine_;
  std::unique_ptr<QQuickItem> page_;
  ScrollKeys keys_;
};

struct Press {
  int key;
  qreal from;
  qreal to;
};

class ScrollKeysPressTest : public ScrollKeysTest, public testing::WithParamInterface<Press> {};

TEST_P(ScrollKeysPressTest, Scrolls) {
  scrollTo(GetParam().from);
  EXPECT_TRUE(press(GetParam().key));
  EXPECT_EQ(position(), GetParam().to);
}

TEST_P(ScrollKeysPressTest, ScrollsFromTheKeypadToo) {
  scrollTo(GetParam().from);
  EXPECT_TRUE(press(GetParam().key, Qt::KeypadModifier));
  EXPECT_EQ(position(), GetParam().to);
}

INSTANTIATE_TEST_SUITE_P(Keys, ScrollKeysPressTest,
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

TEST_F(ScrollKeysTest, LeavesOtherKeysToOthers) {
  for (const int key : {Qt::Key_A, Qt::Key_Tab, Qt::Key_Left, Qt::Key_Right, Qt::Key_Space,
                        Qt::Key_Return, Qt::Key_Escape}) {
    EXPECT_FALSE(press(key)) << key;
  }
  EXPECT_EQ(position(), 0);
}

TEST_F(ScrollKeysTest, LeavesKeysWithModifiersToOthers) {
  for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::ShiftModifier}) {
    EXPECT_FALSE(press(Qt::Key_Down, modifier));
    EXPECT_FALSE(press(Qt::Key_End, modifier));
  }
  EXPECT_EQ(position(), 0);
}

TEST_F(ScrollKeysTest, LeavesReleasesToOthers) {
  QKeyEvent release(QEvent::KeyRelease, Qt::Key_Down, Qt::NoModifier);
  EXPECT_FALSE(keys_.eventFilter(page_.get(), &release));
  EXPECT_EQ(position(), 0);
}

TEST_F(ScrollKeysTest, DoesNothingWhereAllFits) {
  page_->setProperty("contentHeight", 100);
  for (const int key : {Qt::Key_Down, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Up, Qt::Key_Home}) {
    EXPECT_TRUE(press(key));
    EXPECT_EQ(position(), 0);
  }
}

TEST_F(ScrollKeysTest, ListensToItsTargetOnly) {
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  keys_.setTarget(nullptr);
  QCoreApplication::sendEvent(page_.get(), &down);
  EXPECT_EQ(position(), 0);
  keys_.setTarget(page_.get());
  QCoreApplication::sendEvent(page_.get(), &down);
  EXPECT_EQ(position(), 40);
}

TEST_F(ScrollKeysTest, OutlivesItsTarget) {
  page_.reset();
  EXPECT_EQ(keys_.target(), nullptr);
  keys_.setTarget(nullptr);
}

}  // namespace
}  // namespace quillmark::test
