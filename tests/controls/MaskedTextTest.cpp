// SPDX-FileCopyrightText: 2026 The Quillmark Agent authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/MaskedText.h"

#include <memory>
#include <string>

#include <QQmlComponent>
#include <QQmlEngine>

#include <gtest/gtest.h>

namespace quillmark::test {
namespace {

/// A field like those of the form.
class MaskedTextTest : public testing::Test {
 protected:
  void make(const QByteArray& echoMode) {
    QQmlComponent component(&engine_);
    component.setData("import QtQuick\nTextInput { echoMode: TextInput." + echoMode +
                          "; Accessible.passwordEdit: echoMode !== TextInput.Normal }",
                      QUrl());
    field_.reset(component.create());
    ASSERT_NE(field_, nullptr) << component.errorString().toStdString();
  }

  void expectTextIsMasked(bool isMaskedText) const {
    const auto text = QStringLiteral("a");
    EXPECT_EQ(containsMaskedText(QAccessibleTextInsertEvent(field_.get(), 0, text)), isMaskedText);
    EXPECT_EQ(containsMaskedText(QAccessibleTextRemoveEvent(field_.get(), 0, text)), isMaskedText);
    EXPECT_EQ(containsMaskedText(QAccessibleTextUpdateEvent(field_.get(), 0, text, text)),
              isMaskedText);
    EXPECT_FALSE(containsMaskedText(QAccessibleTextCursorEvent(field_.get(), 1)));
  }

 private:
  QQmlEngine engine_;
  std::unique_ptr<QObject> field_;
};

TEST_F(MaskedTextTest, IsTextOfAMaskedField) {
  make("Password");
  expectTextIsMasked(true);
}

TEST_F(MaskedTextTest, IsNotTextOfAnotherField) {
  make("Normal");
  expectTextIsMasked(false);
}

TEST_F(MaskedTextTest, IsNotTextOfOtherObjects) {
  QObject object;
  EXPECT_FALSE(containsMaskedText(QAccessibleTextInsertEvent(&object, 0, QStringLiteral("a"))));
}

}  // namespace
}  // namespace quillmark::test
