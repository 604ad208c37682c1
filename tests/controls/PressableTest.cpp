// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <memory>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include <gtest/gtest.h>

#include "main/ViewEngine.h"
#include "viewmodel/GuiTest.h"

namespace quillmark::test {
namespace {

class PressableTest : public testing::TestWithParam<Qt::Key> {
 protected:
  PressableTest() {
    prepareForViews(engine_);
    QQmlComponent component(&engine_);
    component.setData(
        "import Quillmark.Controls\nPressable { property int presses: 0; label: \"press\"; "
        "onPressed: "
        "++presses }",
        QUrl());
    pressable_.reset(qobject_cast<QQuickItem*>(component.create()));
  }

  void send(QEvent::Type type, bool isRepeated) {
    QKeyEvent event(type, GetParam(), Qt::NoModifier, {}, isRepeated);
    QCoreApplication::sendEvent(pressable_.get(), &event);
  }

  [[nodiscard]] int presses() const { return pressable_->property("presses").toInt(); }

  QQmlEngine engine_;
  std::unique_ptr<QQuickItem> pressable_;
};

TEST_P(PressableTest, IsPressedOnceByAHeldKey) {
  send(QEvent::KeyPress, false);
  EXPECT_EQ(presses(), 1);
  for (int i = 0; i < 3; ++i) {
    send(QEvent::KeyRelease, true);
    send(QEvent::KeyPress, true);
  }
  EXPECT_EQ(presses(), 1);
  send(QEvent::KeyRelease, false);
  send(QEvent::KeyPress, false);
  EXPECT_EQ(presses(), 2);
}

INSTANTIATE_TEST_SUITE_P(Keys, PressableTest,
                         testing::Values(Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter));

}  // namespace
}  // namespace quillmark::test
